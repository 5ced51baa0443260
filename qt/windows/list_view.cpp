// Rows drawn by hand; entries and selection follow those of the screen.
#include "qt/windows/list_view.h"

#include <QPainter>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <cmath>

#include "qt/paint/label_painter.h"
#include "qt/windows/qt_values.h"
#include "toolkit/contrast.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

constexpr Twips kRadius = 120;  // twips, of the box's corners
constexpr double kInset = 60;   // twips, from the box to its entries
// In sizes of the font.
constexpr double kRowHeight = 1.75;
constexpr double kRowGap = 0.05;
constexpr double kRowRadius = 0.25;
constexpr double kRowPadding = 0.5;

// Flat rows with a rounded selection.
class RowDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return {0, static_cast<int>(option.font.pixelSize() * kRowHeight)};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        const bool hovered = option.state.testFlag(QStyle::State_MouseOver);
        const double em = option.font.pixelSize();
        const double gap = em * kRowGap;
        const QRectF row = QRectF(option.rect).adjusted(gap, gap, -gap, -gap);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        if (selected || hovered) {
            painter->setBrush(selected ? option.palette.highlight()
                                       : option.palette.alternateBase());
            painter->drawRoundedRect(row, em * kRowRadius, em * kRowRadius);
        }
        const double padding = em * kRowPadding;
        const QRectF space = row.adjusted(padding, 0, -padding, 0);
        painter->setFont(option.font);
        painter->setPen(selected ? QColor(Qt::white) : option.palette.text().color());
        const QString text =
            QFontMetricsF(option.font)
                .elidedText(index.data().toString(), Qt::ElideRight, space.width());
        painter->drawText(space, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, text);
        painter->restore();
    }
};

}  // namespace

ListView::ListView(ListBox& list, ScreenLink& link, QWidget* parent)
    : QListWidget(parent), ControlView(&list, link), list_(list) {
    setFrameStyle(QFrame::Box | QFrame::Plain);  // painted here; the scroll bar stands within it
    setItemDelegate(new RowDelegate(this));
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(SingleSelection);
    setAttribute(Qt::WA_InputMethodEnabled);
    viewport()->setAutoFillBackground(false);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_Hover);
    connect(this, &QListWidget::itemSelectionChanged, [this] { selectionMade(); });
    connect(this, &QListWidget::itemDoubleClicked,
            [this] { this->link().event([&](Screen& screen) { screen.doubleClick(list_); }); });
}

// The selection may run ahead of what was shown last: it is compared itself.
void ListView::syncLook() {
    syncFont();
    syncColors();
    const QScopedValueRollback writing(writing_, true);
    syncItems();
    syncSelection();
}

void ListView::syncFont() {
    const QFont wanted = link().shell().fonts.font(list_.font, pixelsPerTwip());
    if (shownFont_ == wanted && shownScale_ == pixelsPerTwip())
        return;
    shownFont_ = wanted;
    shownScale_ = pixelsPerTwip();
    setFont(wanted);
    const int inset = static_cast<int>(std::ceil(kInset * shownScale_));
    setLineWidth(inset);
    scheduleDelayedItemsLayout();
    keepSelectionInView();
}

void ListView::syncColors() {
    const Color white = rgb(255, 255, 255);
    QPalette colors = palette();
    colors.setColor(
        QPalette::Highlight,
        toQt(darkEnoughForWhite(list_.selectionColor, scheme().needed(kSmallTextContrast))));
    colors.setColor(QPalette::Base, toQt(scheme().ground(white)));
    colors.setColor(QPalette::AlternateBase, toQt(scheme().ground(style::kHoveredRow)));
    colors.setColor(QPalette::Text, toQt(scheme().ink(style::kInk, white)));
    colors.setColor(QPalette::Mid, toQt(scheme().edge(style::kEdge, white)));
    if (colors == palette())
        return;
    setPalette(colors);
    update();
}

void ListView::syncItems() {
    const std::vector<Text>& wanted = shown<ShownList>().items;
    if (shownItems_ == wanted)
        return;
    // Entries at the front that stay keep their place on the display.
    std::size_t same = 0;
    while (same < shownItems_.size() && same < wanted.size() && shownItems_[same] == wanted[same])
        ++same;
    while (count() > static_cast<int>(same))
        delete takeItem(count() - 1);
    for (std::size_t i = same; i < wanted.size(); ++i)
        addItem(toQt(wanted[i]));
    shownItems_ = wanted;
}

void ListView::syncSelection() {
    const int wanted = shown<ShownList>().listIndex;
    if (wanted == selectedRow())
        return;
    if (wanted < 0) {
        clearSelection();
        return;
    }
    setCurrentRow(wanted);
    keepSelectionInView();
}

void ListView::keepSelectionInView() {
    if (const int row = selectedRow(); row >= 0)
        scrollToItem(item(row));
}

// Rows grow with the window, so that others would be in view afterwards.
void ListView::resizeEvent(QResizeEvent* event) {
    QListWidget::resizeEvent(event);
    keepSelectionInView();
}

int ListView::selectedRow() const {
    const QModelIndexList rows = selectedIndexes();
    return rows.isEmpty() ? -1 : rows.front().row();
}

void ListView::selectionMade() {
    const int row = selectedRow();
    if (writing_ || row == list_.listIndex())
        return;
    link().event([&](Screen& screen) {
        // A player selects another entry, never none: Control with a click is
        // undone by the sync after this event.
        if (row >= 0)
            screen.selectItem(list_, row);
    });
}

// With nothing selected, a key that moves the selection begins with an entry
// at the end that it comes from.
void ListView::move(QKeyEvent& event) {
    const bool down = event.key() == Qt::Key_Down || event.key() == Qt::Key_Home;
    const bool up = event.key() == Qt::Key_Up || event.key() == Qt::Key_End;
    if (selectedRow() < 0 && count() > 0 && (down || up))
        setCurrentRow(down ? 0 : count() - 1);
    else
        QListWidget::keyPressEvent(&event);
}

// The box around the entries; these are painted on the viewport inside it.
bool ListView::event(QEvent* event) {
    if (event->type() != QEvent::Paint)
        return QListWidget::event(event);
    paintBox();
    return true;
}

void ListView::paintBox() {
    QPainter painter(this);
    const auto color = [this](QPalette::ColorRole role) {
        const QColor painted = palette().color(role);
        return rgb(painted.red(), painted.green(), painted.blue());
    };
    paintField(painter, rect(), {kRadius, color(QPalette::Base), color(QPalette::Mid)}, hasFocus(),
               pixelsPerTwip());
}

void ListView::enterEvent(QEnterEvent*) {
    link().event([&](Screen& screen) { screen.mouseMove(list_); });
}

void ListView::focusInEvent(QFocusEvent* event) {
    QListWidget::focusInEvent(event);
    update();
    takeFocus();
}

void ListView::focusOutEvent(QFocusEvent* event) {
    QListWidget::focusOutEvent(event);
    update();
}

}  // namespace quillor
