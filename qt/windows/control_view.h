// What the widgets of all kinds of controls have in common.
#pragma once

#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSizeF>
#include <QWidget>

#include "qt/windows/shell.h"
#include "toolkit/controls.h"
#include "toolkit/shown_control.h"

namespace quillor {

/// From a screen's twips to a window's pixels. Lengths are logical pixels; the
/// display's density is Qt's business.
struct TwipScale {
    double pixels = 0.1;  // a twip's
    QPointF origin;       // of the screen in the window
    QSizeF screen;        // its size in twips
    QSize window;

    /// The largest scale at which `sheet` twips fit into the window, with a
    /// screen of `twips`, which may be smaller, in the middle.
    static TwipScale fitting(QSizeF sheet, QSizeF twips, QSize window);

    /// Each edge is rounded by itself, so that controls that touch in twips
    /// touch in pixels. `twips` is relative to the screen.
    QRect place(const QRectF& twips) const;
    /// The place of something with a ground of its own. When that reaches from
    /// one edge of the screen to the opposite one, it goes on to the window's edges.
    QRect groundPlace(const QRectF& twips) const;

    bool operator==(const TwipScale&) const = default;
};

/// Where a control's parent stands on the screen, in twips.
QPointF parentOrigin(const Control& control);

/// A control's rectangle on the screen, in twips.
QRectF screenRect(const Control& control);

/// Shows one control. It keeps what it showed last and applies only what differs.
class ControlView {
  public:
    virtual ~ControlView() { link_.shell().motions.stop(this); }
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;

    virtual QWidget& widget() = 0;
    Control& control() const { return controlOf(ref_); }

    /// Looks at the control; returns whether it is not shown as it is now.
    bool differs();
    /// Whether what has become of it may show behind other controls, or move them.
    virtual bool isBehindOthers() const { return true; }
    /// Whether its widget may have gone other ways than the control.
    virtual bool mayStray() const { return false; }
    /// Applies every difference that was seen but one: a control that is to be hidden or
    /// disabled stays as it is until `withdraw`, so that the focus can leave it.
    void sync(const TwipScale& scale);
    void withdraw();

    /// What a screen reader says of it. Empty while it is not seen.
    QString spokenName() const;
    QString spokenDescription() const;

    /// Whether its ground is a bar from edge to edge along the top of a screen of
    /// that size, in twips.
    bool isHeadBar(QSizeF screen) const;

  protected:
    ControlView(ControlRef control, ScreenLink& link) : ref_(control), link_(link) {}

    /// Applies differences in what only this kind of control has. Some of them are not
    /// the control's own: the scale, and what lies behind it.
    virtual void syncLook() = 0;
    /// What was said of it, or its check, has changed.
    virtual void announce(const ShownControl::Changes&) {}
    template <typename Shown>
    const Shown& shown() const {
        return std::get<Shown>(shown_.look);
    }
    /// Tells assistive tools what is said of it from now on.
    virtual void syncWords();
    /// Whether its widget may appear once the control is visible.
    virtual bool mayShow() const { return true; }
    /// On the screen, in twips.
    virtual QRectF extent() const { return screenRect(control()); }
    /// Whether it fills its place with a ground of its own.
    virtual bool hasGround() const { return false; }

    /// Where the control lies in its widget, in pixels: all over, unless its
    /// ground goes on to the window's edges.
    QRectF ownPlace() const;
    const TwipScale& scale() const { return scale_; }
    double pixelsPerTwip() const { return scale_.pixels; }
    ScreenLink& link() const { return link_; }
    /// The system has given it the focus: the player, or an assistive tool, wants it so.
    void takeFocus();

    const Scheme& scheme() const { return link_.shell().scheme; }

  private:
    void syncPlace(const TwipScale& scale);
    void put();
    void startMotion();

    const ControlRef ref_;
    ScreenLink& link_;
    TwipScale scale_;
    ShownControl shown_;
    ShownControl::Changes changes_;  // not applied yet
    bool named_ = false;             // its words have been told once
    QRect place_;                    // where it stands
    QPointF shift_;                  // and how far it is from there, in sizes of its height
    int motions_ = 0;                // shown so far
};

}  // namespace quillor
