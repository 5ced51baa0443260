// What the widgets of all kinds of controls have in common.
#pragma once

#include <QRectF>
#include <QWidget>

#include "qt/windows/screen_link.h"
#include "qt/windows/twip_scale.h"
#include "toolkit/controls.h"

namespace quillor {

/// Shows one control. It keeps what it showed last and applies only what differs.
class ControlView {
  public:
    virtual ~ControlView() = default;
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;

    virtual QWidget& widget() = 0;
    Control& control() const { return control_; }

    /// Applies every difference but one: a control that is to be hidden or
    /// disabled stays as it is until `withdraw`, so that the focus can leave it.
    void sync(const TwipScale& scale);
    void withdraw();

    /// Whether the control and the frames it stands on are visible and enabled.
    bool isUsable() const;
    /// Whether its ground is a bar from edge to edge along the top of a screen of
    /// that size, in twips.
    bool isHeadBar(QSizeF screen) const;
    /// Whether Tab stops here.
    virtual bool takesTab() const { return false; }

  protected:
    ControlView(Control& control, ScreenLink& link) : control_(control), link_(link) {}

    /// Applies differences in what only this kind of control has.
    virtual void syncLook() = 0;
    /// On the screen, in twips.
    virtual QRectF extent() const { return screenRect(control_); }
    virtual QString spokenName() const;
    /// Whether it fills its place with a ground of its own.
    virtual bool hasGround() const { return false; }

    /// Where the control lies in its widget, in pixels: all over, unless its
    /// ground goes on to the window's edges.
    QRectF ownPlace() const;
    const TwipScale& scale() const { return scale_; }
    double pixelsPerTwip() const { return scale_.pixels; }
    ScreenLink& link() const { return link_; }

  private:
    void syncPlace(const TwipScale& scale);
    void syncWords();

    Control& control_;
    ScreenLink& link_;
    TwipScale scale_;
    Text toolTip_;
    bool described_ = false;
};

}  // namespace quillor
