// How boxes and popup menus look: what the program tells them, and the painting
// that makes them part of the notebook on every system.
#pragma once

#include <QFont>
#include <QPalette>
#include <QPixmap>
#include <QProxyStyle>
#include <QStyleOption>

#include "core/types.h"
#include "toolkit/scheme.h"

namespace quillor {

enum class BoxSign { Information, Question, Critical };

/// A filled circle with a white mark, for a square of `size` logical pixels: red
/// for what is critical, in the accent otherwise.
QPixmap boxIcon(BoxSign sign, const QColor& accent, int size, double density);

/// Over which window a box stands (null: none), and what it is drawn with.
struct BoxStyle {
    QWidget* parent = nullptr;
    QFont font;        // of all texts, in pixels
    QFont buttonFont;  // the same
    Color accent = rgb(20, 140, 220);
    bool low = false;  // in the lower part of that window, so that what is above can be read
    Scheme scheme;
    bool ringShown = false;  // the focus is shown from the start, not only after the first Tab
};

/// The colours of a box or menu: `Highlight` is the accent, dark enough for the white
/// `HighlightedText`; so are `Light` and `Dark`, of a button under the mouse and of one
/// that is pressed.
QPalette notebookColors(Color accent, Color ground, const Scheme& scheme = {});

/// The application's style. It paints buttons, fields and menus in the colours of
/// their palettes and measures all in sizes of their fonts.
class NotebookStyle : public QProxyStyle {
  public:
    NotebookStyle();

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override;

  private:
    void paintButton(QPainter& painter, const QStyleOptionButton& button,
                     const QWidget* widget) const;
};

}  // namespace quillor
