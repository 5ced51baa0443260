// How boxes and popup menus look: what the program tells them, and the painting
// that makes them part of the notebook on every system.
#pragma once

#include <QFont>
#include <QProxyStyle>
#include <QStyleOption>

#include "core/types.h"

namespace quillor {

/// Over which window a box stands (null: none), and what it is drawn with.
struct BoxStyle {
    QWidget* parent = nullptr;
    QFont font;  // of all texts; its size in pixels is the measure of everything else
    QFont buttonFont;
    Color accent = rgb(20, 140, 220);
    bool low = false;        // in the lower part of that window, so that what is above can be read
    bool ringShown = false;  // the focus is shown from the start, not only after the first Tab
};

/// Paints buttons, fields and menus. It must outlive the widgets that it is set on.
class NotebookStyle : public QProxyStyle {
  public:
    explicit NotebookStyle(const BoxStyle& box);

    /// Sets style, colours and fonts of a box and all that is in it by now, or
    /// of a menu. `main` (null: none) is the button that stands out.
    void dress(QWidget& widget, const QWidget* main = nullptr);

    QColor accent() const { return accent_; }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override;

  private:
    int px(double ems) const;
    double line() const;
    void paintButton(QPainter& painter, const QStyleOptionButton& button, bool main) const;
    void paintField(QPainter& painter, const QStyleOption& field) const;
    void paintSeparator(QPainter& painter, const QRect& area) const;
    void paintMenuItem(QPainter& painter, const QStyleOptionMenuItem& item) const;
    void paintCheckBox(QPainter& painter, const QStyleOptionMenuItem& item) const;
    void paintArrow(QPainter& painter, const QRectF& text, const QColor& ink) const;

    double em_;  // logical pixels of the texts' font
    QFont buttonFont_;
    QColor accent_;
    const QWidget* main_ = nullptr;
};

/// Draws the edge of a box that is in this style into the box.
void paintBoxEdge(QWidget& box);

}  // namespace quillor
