// Everything is measured in sizes of the texts' font, so that it scales with the window.
#include "qt/boxes/box_style.h"

#include <QPainter>
#include <QPushButton>
#include <QStyleFactory>
#include <algorithm>
#include <cmath>

#include "core/text_rules.h"
#include "qt/paint/paper.h"
#include "qt/paint/symbol_painter.h"
#include "qt/windows/qt_values.h"
#include "toolkit/symbols.h"
#include "ui/accent.h"

namespace quillor {

namespace {

const QColor kInk(40, 40, 40);
const QColor kEdge(135, 135, 142);  // contrast 3.5:1 on white
const QColor kFineEdge(205, 204, 198);
const QColor kQuietFace(244, 243, 239);
const QColor kHover(26, 164, 26);  // contrast 3.2:1 under white
const QColor kPressed(18, 120, 18);

constexpr double kLeastContrast = 3;
constexpr double kFaded = 0.4;  // opacity of what is disabled

// All in sizes of the texts' font.
constexpr double kRadius = 0.5;
constexpr double kRing = 0.28;  // around a button's face: the focus ring and its gap
constexpr double kButtonWidth = 6.2;
constexpr double kButtonSide = 1.3;
constexpr double kButtonHeight = 2.5;
constexpr double kFieldSide = 0.7;
constexpr double kFieldHeight = 2.4;
constexpr double kEntryHeight = 1.9;
constexpr double kEntrySide = 0.7;
constexpr double kCheckBox = 1.05;
constexpr double kCheckColumn = kEntrySide + kCheckBox + 0.65;
constexpr double kShortcutGap = 2;
constexpr double kArrow = 0.75;
constexpr double kSeparator = 0.7;

// Darker until white can be read on it; any colour may have been chosen.
QColor readableAccent(Color color) {
    while (whiteTextContrast(color) < kLeastContrast)
        color = rgb(redOf(color) * 19 / 20, greenOf(color) * 19 / 20, blueOf(color) * 19 / 20);
    return toQt(color);
}

QPalette notebookColors(const QColor& accent, const QColor& ground) {
    QPalette colors(kInk, kPaperColor);
    colors.setColor(QPalette::Window, ground);
    colors.setColor(QPalette::Base, Qt::white);
    colors.setColor(QPalette::Highlight, accent);
    colors.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colors.setColor(role, kInk);
    return colors;
}

void paintRounded(QPainter& painter, const QRectF& area, double radius, const QColor& face,
                  const QPen& edge) {
    const double inset = edge.style() == Qt::NoPen ? 0 : edge.widthF() / 2;
    painter.setPen(edge);
    painter.setBrush(face);
    painter.drawRoundedRect(area.adjusted(inset, inset, -inset, -inset), radius, radius);
}

struct Caption {
    QString text;
    QString shortcut;
};

Caption captionOf(const QString& text) {
    const qsizetype tab = text.indexOf('\t');
    return tab < 0 ? Caption{text, {}} : Caption{text.left(tab), text.mid(tab + 1)};
}

// By the mouse or by the arrow keys; a disabled entry never is.
bool isHovered(const QStyleOptionMenuItem& item) {
    return (item.state & QStyle::State_Selected) && (item.state & QStyle::State_Enabled);
}

/// A painter's state comes back when its painting is done.
class Painting {
  public:
    explicit Painting(QPainter& painter) : painter_(painter) {
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
    }
    ~Painting() { painter_.restore(); }
    Painting(const Painting&) = delete;
    Painting& operator=(const Painting&) = delete;

  private:
    QPainter& painter_;
};

}  // namespace

// One base on every system, for what is not painted here.
NotebookStyle::NotebookStyle(const BoxStyle& box)
    : QProxyStyle(QStyleFactory::create("Fusion")),
      em_(std::max(1, box.font.pixelSize())),
      buttonFont_(box.buttonFont),
      accent_(readableAccent(box.accent)) {}

void NotebookStyle::dress(QWidget& widget, const QWidget* main) {
    main_ = main;
    const bool menu = widget.windowType() == Qt::Popup;
    const QList<QWidget*> parts = widget.findChildren<QWidget*>();
    widget.setStyle(this);
    for (QWidget* part : parts)
        part->setStyle(this);
    widget.setPalette(notebookColors(accent_, menu ? Qt::white : kPaperColor));
    for (QWidget* part : parts)
        if (auto* button = qobject_cast<QPushButton*>(part)) {
            button->setFont(buttonFont_);
            button->setCursor(Qt::PointingHandCursor);
        }
}

int NotebookStyle::px(double ems) const {
    return std::max(1, static_cast<int>(std::lround(ems * em_)));
}

// The width of edges.
double NotebookStyle::line() const {
    return std::max(1.0, em_ / 13);
}

void NotebookStyle::paintButton(QPainter& painter, const QStyleOptionButton& button,
                                bool main) const {
    const Painting painting(painter);
    const bool enabled = button.state & State_Enabled;
    const bool pressed = enabled && (button.state & State_Sunken);
    const bool hovered = enabled && (button.state & State_MouseOver);
    const bool colored = main || pressed || hovered;
    const QColor face = pressed ? kPressed : hovered ? kHover : main ? accent_ : kQuietFace;
    const QRectF whole(button.rect);
    const double gap = px(kRing);
    if (!enabled)
        painter.setOpacity(kFaded);
    paintRounded(painter, whole.adjusted(gap, gap, -gap, -gap), kRadius * em_, face,
                 colored ? QPen(Qt::NoPen) : QPen(kEdge, line()));
    if ((button.state & State_HasFocus) && (button.state & State_KeyboardFocusChange))
        paintRounded(painter, whole, kRadius * em_ + gap, Qt::transparent, QPen(kInk, em_ / 7));
    painter.setPen(colored ? Qt::white : kInk);
    painter.setFont(buttonFont_);
    const bool marked = proxy()->styleHint(SH_UnderlineShortcut, &button, nullptr, nullptr);
    painter.drawText(button.rect,
                     Qt::AlignCenter | (marked ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
                     button.text);
}

void NotebookStyle::paintField(QPainter& painter, const QStyleOption& field) const {
    const Painting painting(painter);
    const bool focused = field.state & State_HasFocus;
    paintRounded(painter, QRectF(field.rect), kRadius * em_, Qt::white,
                 focused ? QPen(accent_, 2 * line()) : QPen(kEdge, line()));
}

void NotebookStyle::paintCheckBox(QPainter& painter, const QStyleOptionMenuItem& item) const {
    const int side = px(kCheckBox);
    const QRect box(item.rect.left() + px(kEntrySide), item.rect.center().y() - side / 2, side,
                    side);
    const QRectF square(box);
    const bool hovered = isHovered(item);
    const bool radio = item.checkType == QStyleOptionMenuItem::Exclusive;
    const double radius = square.width() / (radio ? 2 : 4);
    if (!item.checked) {
        paintRounded(painter, square, radius, hovered ? Qt::transparent : Qt::white,
                     QPen(hovered ? QColor(Qt::white) : kEdge, line()));
        return;
    }
    paintRounded(painter, square, radius, hovered ? QColor(Qt::white) : accent_, Qt::NoPen);
    const QColor mark = hovered ? accent_ : QColor(Qt::white);
    const double inset = square.width() / (radio ? 3.2 : 8);
    const QRectF inner = square.adjusted(inset, inset, -inset, -inset);
    if (radio)
        paintRounded(painter, inner, inner.width() / 2, mark, Qt::NoPen);
    else
        drawSymbol(painter, inner, Face::Webdings, symbols::kTick[0], mark);
}

void NotebookStyle::paintArrow(QPainter& painter, const QRectF& text, const QColor& ink) const {
    const double side = px(kArrow);
    drawSymbol(painter, QRectF(text.right() - side, text.center().y() - side / 2, side, side),
               Face::Webdings, symbols::kTriangleRight[0], ink);
}

void NotebookStyle::paintSeparator(QPainter& painter, const QRect& area) const {
    const int thickness = static_cast<int>(std::lround(line()));
    painter.fillRect(area.left(), area.center().y(), area.width(), thickness, kFineEdge);
}

void NotebookStyle::paintMenuItem(QPainter& painter, const QStyleOptionMenuItem& item) const {
    const Painting painting(painter);
    const bool hovered = isHovered(item);
    if (hovered)
        paintRounded(painter, QRectF(item.rect), kRadius * em_ / 2, accent_, Qt::NoPen);
    if (!(item.state & State_Enabled))
        painter.setOpacity(kFaded);
    if (item.checkType != QStyleOptionMenuItem::NotCheckable)
        paintCheckBox(painter, item);
    const QColor ink = hovered ? QColor(Qt::white) : kInk;
    const QRect text = item.rect.adjusted(px(kCheckColumn), 0, -px(kEntrySide), 0);
    const auto [caption, shortcut] = captionOf(item.text);
    painter.setFont(item.font);
    painter.setPen(ink);
    painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, caption);
    painter.drawText(text, Qt::AlignVCenter | Qt::AlignRight, shortcut);
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu)
        paintArrow(painter, QRectF(text), ink);
}

void NotebookStyle::drawControl(ControlElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    if (element == CE_PushButton) {
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
            paintButton(*painter, *button, widget && widget == main_);
    } else if (element == CE_MenuItem) {
        const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        if (item && item->menuItemType == QStyleOptionMenuItem::Separator)
            paintSeparator(*painter, item->rect);
        else if (item)
            paintMenuItem(*painter, *item);
    } else if (element != CE_MenuEmptyArea) {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void NotebookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
    if (element == PE_PanelLineEdit) {
        paintField(*painter, *option);
    } else if (element == PE_PanelMenu) {
        painter->fillRect(option->rect, Qt::white);
    } else if (element == PE_FrameMenu) {
        const Painting painting(*painter);
        paintRounded(*painter, QRectF(option->rect), 0, Qt::transparent, QPen(kEdge, line()));
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

int NotebookStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                               const QWidget* widget) const {
    switch (metric) {
        case PM_LayoutLeftMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutBottomMargin:
            // Only the box itself has a margin, not what is grouped in it.
            return widget && widget->isWindow() ? px(1.4) : 0;
        case PM_LayoutHorizontalSpacing:
            return px(0.5);
        case PM_LayoutVerticalSpacing:
            return px(0.9);
        case PM_MenuPanelWidth:
            return px(0.1);
        case PM_MenuHMargin:
        case PM_MenuVMargin:
            return px(0.35);
        case PM_SubMenuOverlap:
            return 0;
        case PM_MenuScrollerHeight:
            return px(1.2);
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize NotebookStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                      const QSize& contents, const QWidget* widget) const {
    if (type == CT_PushButton) {
        const int ring = 2 * px(kRing);
        return {std::max(contents.width() + 2 * px(kButtonSide), px(kButtonWidth)) + ring,
                std::max(contents.height(), px(kButtonHeight)) + ring};
    }
    if (type == CT_LineEdit)
        return {contents.width() + 2 * px(kFieldSide),
                std::max(contents.height(), px(kFieldHeight))};
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type != CT_MenuItem || !item)
        return QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (item->menuItemType == QStyleOptionMenuItem::Separator)
        return {1, px(kSeparator)};
    const bool further =
        item->text.contains('\t') || item->menuItemType == QStyleOptionMenuItem::SubMenu;
    return {contents.width() + px(kCheckColumn) + px(kEntrySide) + (further ? px(kShortcutGap) : 0),
            std::max(contents.height(), px(kEntryHeight))};
}

QRect NotebookStyle::subElementRect(SubElement element, const QStyleOption* option,
                                    const QWidget* widget) const {
    if (element == SE_LineEditContents)
        return option->rect.adjusted(px(kFieldSide), 0, -px(kFieldSide), 0);
    return QProxyStyle::subElementRect(element, option, widget);
}

int NotebookStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* result) const {
    switch (hint) {
        case SH_DialogButtonBox_ButtonsHaveIcons:
        case SH_MessageBox_CenterButtons:
            return 0;
        case SH_Menu_Scrollable:
            return 1;
        default:
            return QProxyStyle::styleHint(hint, option, widget, result);
    }
}

void paintBoxEdge(QWidget& box) {
    QPainter painter(&box);
    QStyleOption frame;
    frame.initFrom(&box);
    box.style()->drawPrimitive(QStyle::PE_FrameMenu, &frame, &painter, &box);
}

}  // namespace quillor
