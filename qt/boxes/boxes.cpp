// Every box is a dialog with a sign or a picture, texts, and a row of buttons,
// sized by what is in it.
#include "qt/boxes/boxes.h"

#include <QAccessibleWidget>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QStyleOption>
#include <algorithm>
#include <utility>

#include "core/text_rules.h"
#include "core/texts.h"
#include "qt/windows/qt_values.h"
#include "toolkit/style.h"

namespace quillor {

namespace {

// In sizes of the texts' font.
constexpr int kIconSize = 3;
constexpr int kAboutIconSize = 4;
constexpr int kInputWidth = 26;
constexpr double kInputHeight = 2.4;
constexpr double kInputSide = 0.7;
constexpr int kTextWidth = 30;  // of a text's lines at most
constexpr int kBesideText = 9;  // margins, icon and gaps
constexpr double kTitleSize = 1.5;
constexpr double kMargin = 1.4;
constexpr double kRowGap = 0.9;
constexpr double kColumnGap = 1.2;
constexpr double kButtonGap = 0.5;

constexpr double kLowPlace = 0.72;  // of the window's height, for a low box's middle

QAccessibleInterface* makeInterface(const QString&, QObject* object);

class Box : public QDialog {
  public:
    Box(const BoxStyle& style, QAccessible::Role boxRole)
        : QDialog(style.parent), role(boxRole), style_(style), rows_(new QGridLayout(this)) {
        QAccessible::installFactory(makeInterface);
        setWindowTitle(toQt(texts::kProgramName));
        setFont(style.font);
        setPalette(notebookColors(style.accent, style::kPaper, style.scheme));
        const int margin = px(kMargin);
        rows_->setContentsMargins(margin, margin, margin, margin);
        rows_->setVerticalSpacing(px(kRowGap));
        rows_->setHorizontalSpacing(0);  // unless something stands beside the texts
        rows_->setSizeConstraint(QLayout::SetFixedSize);
        connect(&buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(&buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    }

    const QAccessible::Role role;

    int px(double sizes) const {
        const int wanted = style_.font.pixelSize();
        return static_cast<int>(sizes * (wanted > 0 ? wanted : fontInfo().pixelSize()));
    }

    /// Stands at the left of all texts.
    void addPicture(const QPixmap& picture) {
        auto* label = new QLabel;
        label->setObjectName("picture");
        label->setPixmap(picture);
        rows_->setHorizontalSpacing(px(kColumnGap));
        rows_->addWidget(label, 0, 0, -1, 1, Qt::AlignTop);
    }
    QLabel& addText(QString text, const QFont& font) {
        auto* label = new QLabel(text.replace("\r\n", "\n"));
        label->setFont(font);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setMinimumWidth(lineLength(*label));
        addRow(*label);
        return *label;
    }
    void addRow(QWidget& row) { rows_->addWidget(&row, row_++, 1); }

    /// The first button is the main one.
    QPushButton& addButton(const QString& caption, QDialogButtonBox::ButtonRole meaning) {
        const bool main = buttons_.buttons().isEmpty();
        QPushButton& button = *buttons_.addButton(caption, meaning);
        button.setFont(style_.buttonFont);
        button.setCursor(Qt::PointingHandCursor);
        button.setDefault(main);
        if (main) {
            QPalette colors = palette();
            colors.setColor(QPalette::Button, colors.color(QPalette::Highlight));
            button.setPalette(colors);
        }
        return button;
    }

    /// To be shown, the focus on that widget.
    void prepare(QWidget& focus) {
        buttons_.layout()->setSpacing(px(kButtonGap));
        rows_->addWidget(&buttons_, row_, 0, 1, -1);
        focus.setFocus();
        layout()->activate();
        putInPlace(style_.parent);
    }
    /// Shows it until it is answered. True: accepted.
    bool ask(QWidget& focus) {
        prepare(focus);
        return exec() == Accepted;
    }

  protected:
    // A fine edge, where paper would lie on paper.
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        QStyleOption frame;
        frame.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameMenu, &frame, &painter, this);
    }
    void showEvent(QShowEvent* event) override {
        setAttribute(Qt::WA_KeyboardFocusChange, style_.ringShown);
        QDialog::showEvent(event);
        if (role != QAccessible::AlertMessage)
            return;
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
    void resizeEvent(QResizeEvent* event) override {
        QDialog::resizeEvent(event);
        if (isVisible())
            putInPlace(this);
    }

  private:
    // Long texts are set in lines of a good length, whatever the font's size.
    int lineLength(const QLabel& label) const {
        const QSize whole = QFontMetrics(label.font()).size(Qt::TextExpandTabs, label.text());
        const int space = screen()->availableGeometry().width() - px(kBesideText);
        return std::min({whole.width() + 1, px(kTextWidth), space});
    }

    // Low in its window, so that what is above can be read. The edges that the
    // desktop adds are those of `framed`, a window that it shows already.
    void putInPlace(const QWidget* framed) {
        if (!style_.low || !style_.parent)
            return;
        const QRect below = style_.parent->geometry();
        QRect place(QPoint(), size() + framed->frameGeometry().size() - framed->size());
        place.moveCenter(
            {below.center().x(), below.top() + static_cast<int>(below.height() * kLowPlace)});
        const QRect space = style_.parent->screen()->availableGeometry();
        place.moveBottom(std::min(place.bottom(), space.bottom()));
        move(place.topLeft());
    }

    const BoxStyle& style_;
    QGridLayout* rows_;
    int row_ = 0;
    QDialogButtonBox buttons_;
};

// A message is announced as what it is, as soon as it appears.
QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* box = dynamic_cast<Box*>(object);
    return box ? new QAccessibleWidget(box, box->role) : nullptr;
}

/// A box with a sign beside one text.
class Message : public Box {
  public:
    Message(const BoxStyle& style, BoxSign sign, const QString& text)
        : Box(style, QAccessible::AlertMessage) {
        const QPixmap picture =
            boxIcon(sign, palette().color(QPalette::Highlight), px(kIconSize), devicePixelRatioF());
        addPicture(picture);
        // A short one stands beside the middle of the sign.
        addText(text, style.font).setMinimumHeight(px(kIconSize));
    }
};

}  // namespace

void showMessage(const BoxStyle& style, BoxSign sign, const QString& text, const QString& accept) {
    Message box(style, sign, text);
    box.ask(box.addButton(accept, QDialogButtonBox::AcceptRole));
}

bool askQuestion(const BoxStyle& style, const QString& text, const QString& yes, const QString& no,
                 bool yesLoses) {
    Message box(style, BoxSign::Question, text);
    QPushButton* first = nullptr;
    for (const bool agrees : {!yesLoses, yesLoses}) {
        QPushButton& button = box.addButton(
            agrees ? yes : no, agrees ? QDialogButtonBox::YesRole : QDialogButtonBox::NoRole);
        first = first ? first : &button;
    }
    return box.ask(*first);
}

QString askText(const BoxStyle& style, const QString& prompt, const QString& accept,
                const QString& cancel) {
    Box box(style, QAccessible::Dialog);
    const QLabel& words = box.addText(prompt, style.font);
    QLineEdit field;
    field.setMinimumSize(box.px(kInputWidth), box.px(kInputHeight));
    field.setTextMargins(box.px(kInputSide), 0, box.px(kInputSide), 0);
    field.setAccessibleName(words.text());
    field.setContextMenuPolicy(Qt::NoContextMenu);  // not in the program's language
    box.addRow(field);
    box.addButton(accept, QDialogButtonBox::AcceptRole);
    box.addButton(cancel, QDialogButtonBox::RejectRole);
    // What was pasted may have line breaks.
    return box.ask(field) ? toQt(oneLine(fromQt(field.text()))) : QString();
}

void showAbout(const BoxStyle& style, const QString& title, const QString& text,
               const QString& accept) {
    Box box(style, QAccessible::AlertMessage);
    const QIcon program(QStringLiteral(":/icon/quillor-512.png"));
    box.addPicture(program.pixmap(QSize(1, 1) * box.px(kAboutIconSize), box.devicePixelRatioF()));
    QFont large = style.buttonFont;
    large.setPixelSize(box.px(kTitleSize));
    box.addText(title, large);
    box.addText(text, style.font).setContentsMargins(0, 0, 0, box.px(1));
    box.ask(box.addButton(accept, QDialogButtonBox::AcceptRole));
}

struct Notice::Impl {
    Impl(BoxStyle boxStyle, const QString& text)
        : style(std::move(boxStyle)), box(style, BoxSign::Information, text) {}
    const BoxStyle style;  // the box goes by it as long as it stands
    Message box;
};

Notice::Notice(const BoxStyle& style, const QString& text, const QString& button,
               std::function<void()> refused)
    : impl_(std::make_unique<Impl>(style, text)) {
    impl_->box.prepare(impl_->box.addButton(button, QDialogButtonBox::RejectRole));
    QObject::connect(&impl_->box, &QDialog::rejected, std::move(refused));
    impl_->box.show();
}

Notice::~Notice() = default;

}  // namespace quillor
