// Everything is measured in sizes of a widget's font, so that it scales with the window.
#include "qt/boxes/box_style.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "qt/paint/symbol_painter.h"
#include "qt/windows/qt_values.h"
#include "toolkit/contrast.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

constexpr double kFaded = 0.4;  // opacity of what is disabled

// All in sizes of the font.
constexpr double kRadius = 0.5;
constexpr double kRing = 0.28;  // around a button's face: the focus ring and its gap
constexpr double kButtonWidth = 6.2;
constexpr double kButtonSide = 1.3;
constexpr double kButtonHeight = 2.5;
constexpr double kEntryHeight = 1.9;
constexpr double kEntrySide = 0.7;
constexpr double kCheckBox = 1.05;
constexpr double kCheckColumn = kEntrySide + kCheckBox + 0.65;
constexpr double kShortcutGap = 2;
constexpr double kArrow = 0.75;
constexpr double kSeparator = 0.7;

/// Sizes of a widget's font in whole pixels.
class Em {
  public:
    explicit Em(const QWidget* widget)
        : pixels_(QFontInfo(widget ? widget->font() : QFont()).pixelSize()) {}
    int operator()(double sizes) const {
        return std::max(1, static_cast<int>(std::lround(sizes * pixels_)));
    }
    double line() const { return std::max(1.0, pixels_ / 13.0); }  // of edges

  private:
    int pixels_;
};

void paintRounded(QPainter& painter, const QRectF& area, double radius, const QBrush& face,
                  const QPen& edge = Qt::NoPen) {
    const double inset = edge.style() == Qt::NoPen ? 0 : edge.widthF() / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(edge);
    painter.setBrush(face);
    painter.drawRoundedRect(area.adjusted(inset, inset, -inset, -inset), radius, radius);
}

// A square with a tick, or a circle with a dot where one of several is chosen.
void paintCheck(QPainter& painter, const QRectF& box, const QStyleOptionMenuItem& item,
                const QColor& color, const QPen& edge) {
    const bool radio = item.checkType == QStyleOptionMenuItem::Exclusive;
    const double radius = box.width() / (radio ? 2 : 4);
    const QColor ground = item.palette.window().color();
    paintRounded(painter, box, radius, item.checked ? color : ground,
                 item.checked ? QPen(Qt::NoPen) : edge);
    const double inset = box.width() / (radio ? 3.2 : 8);
    const QRectF mark = box.adjusted(inset, inset, -inset, -inset);
    if (item.checked && radio)
        paintRounded(painter, mark, mark.width() / 2, ground);
    else if (item.checked)
        drawSymbol(painter, mark, Face::Webdings, symbols::kTick[0], ground);
}

void paintEntry(QPainter& painter, QStyleOptionMenuItem item, const Em& em) {
    const bool enabled = item.state.testFlag(QStyle::State_Enabled);
    const bool hovered = enabled && item.state.testFlag(QStyle::State_Selected);
    QPalette& colors = item.palette;
    const QColor ink = hovered ? colors.highlightedText().color() : colors.text().color();
    if (hovered)
        paintRounded(painter, item.rect, em(kRadius) / 2.0, colors.highlight());
    if (hovered)
        colors.setColor(QPalette::Window, colors.highlight().color());
    painter.setOpacity(enabled ? 1 : kFaded);
    const int side = em(kCheckBox);
    const QRectF box(item.rect.left() + em(kEntrySide), item.rect.center().y() - side / 2, side,
                     side);
    if (item.checkType != QStyleOptionMenuItem::NotCheckable)
        paintCheck(painter, box, item, hovered ? ink : colors.highlight().color(),
                   QPen(hovered ? ink : colors.mid().color(), em.line()));
    const QRect text = item.rect.adjusted(em(kCheckColumn), 0, -em(kEntrySide), 0);
    painter.setPen(ink);
    painter.setFont(item.font);
    // What stands behind a tab is the shortcut.
    painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic,
                     item.text.section('\t', 0, 0));
    painter.drawText(text, Qt::AlignVCenter | Qt::AlignRight, item.text.section('\t', 1));
    const double arrow = em(kArrow);
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu)
        drawSymbol(painter,
                   QRectF(text.right() + 1 - arrow, text.center().y() - arrow / 2, arrow, arrow),
                   Face::Webdings, symbols::kTriangleRight[0], ink);
}

}  // namespace

QPalette notebookColors(Color accent, Color ground, const Scheme& scheme) {
    const QColor ink = toQt(scheme.ink(style::kInk, ground));
    QPalette colors(toQt(scheme.ground(style::kQuietFace)), toQt(scheme.ground(ground)));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colors.setColor(role, ink);
    colors.setColor(QPalette::Base, toQt(scheme.ground(rgb(255, 255, 255))));
    colors.setColor(QPalette::AlternateBase, toQt(scheme.ground(style::kQuietFace)));
    colors.setColor(QPalette::Mid, toQt(scheme.edge(style::kEdge, ground)));
    colors.setColor(QPalette::Midlight, toQt(scheme.edge(style::kFineEdge, ground)));
    const double needed = scheme.needed(kSmallTextContrast);
    colors.setColor(QPalette::Highlight, toQt(darkEnoughForWhite(accent, needed)));
    colors.setColor(QPalette::Light, toQt(darkEnoughForWhite(style::kBoxHover, needed)));
    colors.setColor(QPalette::Dark, toQt(darkEnoughForWhite(style::kBoxPressed, needed)));
    colors.setColor(QPalette::HighlightedText, Qt::white);
    return colors;
}

// One base on every system, for what is not painted here.
NotebookStyle::NotebookStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

// A face of another colour than the box's quiet one has no edge and white words.
void NotebookStyle::paintButton(QPainter& painter, const QStyleOptionButton& button,
                                const QWidget* widget) const {
    const Em em(widget);
    const bool enabled = button.state.testFlag(State_Enabled);
    const bool pressed = enabled && button.state.testFlag(State_Sunken);
    const bool hovered = enabled && button.state.testFlag(State_MouseOver);
    const QColor face = pressed   ? button.palette.dark().color()
                        : hovered ? button.palette.light().color()
                                  : button.palette.button().color();
    const bool colored = face != button.palette.alternateBase().color();
    const QRectF whole(button.rect);
    const double gap = em(kRing);
    painter.setOpacity(enabled ? 1 : kFaded);
    paintRounded(painter, whole.adjusted(gap, gap, -gap, -gap), em(kRadius), face,
                 colored ? QPen(Qt::NoPen) : QPen(button.palette.mid().color(), em.line()));
    if (button.state.testFlag(State_HasFocus) && button.state.testFlag(State_KeyboardFocusChange))
        paintRounded(painter, whole, em(kRadius) + gap, Qt::NoBrush,
                     QPen(button.palette.windowText().color(), em(1) / 7.0));
    painter.setPen(colored ? QColor(Qt::white) : button.palette.buttonText().color());
    const bool marked = proxy()->styleHint(SH_UnderlineShortcut, &button, widget, nullptr) != 0;
    painter.drawText(button.rect,
                     Qt::AlignCenter | (marked ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
                     button.text);
}

void NotebookStyle::drawControl(ControlElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    painter->save();
    if (element == CE_PushButton && button)
        paintButton(*painter, *button, widget);
    else if (element == CE_MenuItem && item &&
             item->menuItemType == QStyleOptionMenuItem::Separator)
        painter->fillRect(item->rect.left(), item->rect.center().y(), item->rect.width(),
                          static_cast<int>(Em(widget).line()), option->palette.midlight());
    else if (element == CE_MenuItem && item)
        paintEntry(*painter, *item, Em(widget));
    else if (element != CE_MenuEmptyArea)
        QProxyStyle::drawControl(element, option, painter, widget);
    painter->restore();
}

void NotebookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
    const Em em(widget);
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    painter->save();
    if (element == PE_PanelLineEdit && frame && frame->lineWidth > 0)
        paintRounded(*painter, option->rect, em(kRadius), option->palette.base(),
                     option->state.testFlag(State_HasFocus)
                         ? QPen(option->palette.highlight(), 2 * em.line())
                         : QPen(option->palette.mid().color(), em.line()));
    else if (element == PE_PanelMenu)
        painter->fillRect(option->rect, option->palette.window());
    else if (element == PE_FrameMenu)
        paintRounded(*painter, option->rect, 0, Qt::NoBrush,
                     QPen(option->palette.mid().color(), em.line()));
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    painter->restore();
}

// A scroll bar is a slider alone.
void NotebookStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
    if (control != CC_ScrollBar) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    const QRectF slider = proxy()->subControlRect(control, option, SC_ScrollBarSlider, widget);
    const double radius = std::min(slider.width(), slider.height()) / 2;
    painter->save();
    paintRounded(*painter, slider, radius, option->palette.mid());
    painter->restore();
}

int NotebookStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                               const QWidget* widget) const {
    const Em em(widget);
    switch (metric) {
        case PM_MenuPanelWidth:
            return em(0.1);
        case PM_MenuHMargin:
        case PM_MenuVMargin:
            return em(0.35);
        case PM_SubMenuOverlap:
            return 0;
        case PM_MenuScrollerHeight:
            return em(1.2);
        case PM_TextCursorWidth:
            return static_cast<int>(std::lround(em.line()));
        case PM_ScrollBarExtent:
            return em(0.55);
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize NotebookStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                      const QSize& contents, const QWidget* widget) const {
    const Em em(widget);
    if (type == CT_PushButton)
        return contents.expandedTo({em(kButtonWidth - 2 * kButtonSide), em(kButtonHeight)}) +
               QSize(2 * em(kButtonSide), 0) + QSize(2, 2) * em(kRing);
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type != CT_MenuItem || !item)
        return QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (item->menuItemType == QStyleOptionMenuItem::Separator)
        return {1, em(kSeparator)};
    const bool further =
        item->text.contains('\t') || item->menuItemType == QStyleOptionMenuItem::SubMenu;
    const int gap = further ? em(kShortcutGap) : 0;
    return contents.expandedTo({0, em(kEntryHeight)}) +
           QSize(em(kCheckColumn) + em(kEntrySide) + gap, 0);
}

int NotebookStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* result) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    return hint == SH_Menu_Scrollable ? 1 : QProxyStyle::styleHint(hint, option, widget, result);
}

namespace {

// In the unit square: a stem and its dot, the dot at the given height.
void drawStem(QPainter& painter, double from, double to, double dot) {
    painter.setPen(QPen(Qt::white, 0.13, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0.5, from), QPointF(0.5, to));
    painter.setPen(QPen(Qt::white, 0.156, Qt::SolidLine, Qt::RoundCap));
    painter.drawPoint(QPointF(0.5, dot));
}

}  // namespace

QPixmap boxIcon(BoxSign sign, const QColor& accent, int size, double density) {
    const int pixels = static_cast<int>(std::lround(size * density));
    QPixmap picture(pixels, pixels);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels, pixels);
    painter.setPen(Qt::NoPen);
    painter.setBrush(sign == BoxSign::Critical ? toQt(style::kAlarm) : accent);
    painter.drawEllipse(QRectF(0.01, 0.01, 0.98, 0.98));
    if (sign == BoxSign::Question)
        drawSymbol(painter, QRectF(0.21, 0.2, 0.58, 0.58), Face::Webdings, symbols::kQuestion[0],
                   Qt::white);
    else if (sign == BoxSign::Information)
        drawStem(painter, 0.48, 0.73, 0.27);
    else
        drawStem(painter, 0.27, 0.52, 0.73);
    painter.end();
    picture.setDevicePixelRatio(density);
    return picture;
}

}  // namespace quillor
