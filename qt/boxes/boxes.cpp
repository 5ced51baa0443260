// The toolkit's own boxes in the style of the notebook, sized by their font.
#include "qt/boxes/boxes.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QInputDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

#include "core/texts.h"
#include "qt/boxes/box_icon.h"
#include "qt/windows/qt_values.h"

namespace quillor {

namespace {

// In sizes of the texts' font.
constexpr int kIconSize = 3;
constexpr int kAboutIconSize = 4;
constexpr int kInputWidth = 26;
constexpr int kTextWidth = 30;  // of a text's lines at most
constexpr int kBesideText = 9;  // margins, icon and gaps
constexpr double kTitleSize = 1.5;

QString boxTitle() {
    return toQt(texts::kProgramName);
}

constexpr double kLowPlace = 0.72;  // of the window's height, for a low box's middle

// The toolkit's names for the parts of its message box.
constexpr const char* kSign = "qt_msgboxex_icon_label";
constexpr const char* kText = "qt_msgbox_label";
constexpr const char* kFurtherText = "qt_msgbox_informativelabel";

/// A box that knows its place as soon as it knows its size.
template <typename Box>
class Placed : public Box {
  public:
    explicit Placed(const BoxStyle& style)
        : Box(style.parent), low_(style.low), ringShown_(style.ringShown) {}

  protected:
    // A fine edge, where paper would lie on paper.
    void paintEvent(QPaintEvent* event) override {
        Box::paintEvent(event);
        paintBoxEdge(*this);
    }
    void showEvent(QShowEvent* event) override {
        Box::showEvent(event);
        this->setAttribute(Qt::WA_KeyboardFocusChange, ringShown_);
        putInPlace();
    }
    void putInPlace() {
        const QWidget* owner = this->parentWidget();
        if (!low_ || !owner)
            return;
        const QRect below = owner->geometry();
        QRect place = this->frameGeometry();
        place.moveCenter(
            {below.center().x(), below.top() + static_cast<int>(below.height() * kLowPlace)});
        const QRect space = owner->screen()->availableGeometry();
        place.moveBottom(std::min(place.bottom(), space.bottom()));
        this->move(place.topLeft());
    }

  private:
    bool low_;
    bool ringShown_;
};

/// Sized by what is in it. The toolkit's own limits are in pixels, too few of
/// them for a large font.
class MessageWindow : public Placed<QMessageBox> {
  public:
    using Placed::Placed;

  protected:
    bool event(QEvent* event) override {
        if (event->type() != QEvent::LayoutRequest)
            return Placed::event(event);
        fit();
        return QDialog::event(event);
    }
    // Its size is settled only after it was shown.
    void resizeEvent(QResizeEvent* event) override {
        QDialog::resizeEvent(event);
        if (isVisible())
            putInPlace();
    }
    void showEvent(QShowEvent* event) override {
        QMessageBox::showEvent(event);
        fit();
        Placed::showEvent(event);
    }

  private:
    void fit() {
        for (const char* name : {kText, kFurtherText})
            if (auto* label = findChild<QLabel*>(name))
                label->setWordWrap(true);
        layout()->activate();
        const int width =
            std::min(layout()->totalMinimumSize().width(), screen()->availableGeometry().width());
        setFixedSize(width, layout()->totalHeightForWidth(width));
    }
};

QString oneLineEnds(QString text) {
    return text.replace("\r\n", "\n");
}

// Long texts are set in lines of a good length, whatever the font's size.
void setLineLength(QLabel& label, const BoxStyle& style) {
    const QSize whole = QFontMetrics(label.font()).size(Qt::TextExpandTabs, label.text());
    const int em = style.font.pixelSize();
    const int space = label.screen()->availableGeometry().width() - em * kBesideText;
    label.setMinimumWidth(std::min({whole.width() + 1, em * kTextWidth, space}));
}

/// A message box whose parts all have the program's look.
class Message {
  public:
    Message(const BoxStyle& style, QMessageBox::Icon icon, const QString& text)
        : style_(style), look_(style), box_(style) {
        box_.setWindowTitle(boxTitle());
        box_.setFont(style.font);
        box_.setTextFormat(Qt::PlainText);
        box_.setText(oneLineEnds(text));
        box_.setIcon(icon);
    }

    QMessageBox& box() { return box_; }

    /// The first button is the main one; Escape means the last one.
    QPushButton* addButton(const QString& caption, QMessageBox::ButtonRole role) {
        QPushButton* button = box_.addButton(caption, role);
        if (!box_.defaultButton())
            box_.setDefaultButton(button);
        box_.setEscapeButton(button);
        return button;
    }

    /// Shows it until it is answered. A picture takes the place of the sign.
    void ask(const QPixmap& picture = {}) {
        look_.dress(box_, box_.defaultButton());
        // After the style, which brings signs of its own.
        const QPixmap shown = picture.isNull() ? sign() : picture;
        if (auto* label = box_.findChild<QLabel*>(kSign))
            label->setPixmap(shown);
        setTexts(shown.height() / shown.devicePixelRatio());
        box_.exec();
    }

  private:
    QPixmap sign() const {
        return boxIcon(box_.icon(), look_.accent(), style_.font.pixelSize() * kIconSize,
                       box_.devicePixelRatioF());
    }

    // A text by itself stands beside the middle of the sign; one with a further
    // text below it is a title.
    void setTexts(double signHeight) {
        auto* text = box_.findChild<QLabel*>(kText);
        auto* further = box_.findChild<QLabel*>(kFurtherText);
        if (text && further) {
            text->setFont(titleFont());
            further->setContentsMargins(0, 0, 0, style_.font.pixelSize());
        } else if (text) {
            text->setAlignment(Qt::AlignVCenter | Qt::AlignLeft);
            text->setMinimumHeight(static_cast<int>(signHeight));
        }
        for (QLabel* label : {text, further})
            if (label)
                setLineLength(*label, style_);
    }

    QFont titleFont() const {
        QFont font = style_.buttonFont;
        font.setPixelSize(static_cast<int>(style_.font.pixelSize() * kTitleSize));
        return font;
    }

    const BoxStyle& style_;
    NotebookStyle look_;  // outlives the box
    MessageWindow box_;
};

// The field, its prompt and the buttons of an input box.
void prepareInput(QInputDialog& box, const BoxStyle& style, const QString& prompt) {
    if (auto* field = box.findChild<QLineEdit*>()) {
        field->setMinimumWidth(style.font.pixelSize() * kInputWidth);
        field->setAccessibleName(prompt);
        field->setContextMenuPolicy(Qt::NoContextMenu);  // not in the program's language
    }
    // Some styles put icons on these buttons; the other boxes have none.
    for (QPushButton* button : box.findChildren<QPushButton*>())
        button->setIcon({});
}

}  // namespace

void showMessage(const BoxStyle& style, QMessageBox::Icon icon, const QString& text,
                 const QString& accept) {
    Message message(style, icon, text);
    message.addButton(accept, QMessageBox::AcceptRole);
    message.ask();
}

bool askQuestion(const BoxStyle& style, const QString& text, const QString& yes,
                 const QString& no) {
    Message message(style, QMessageBox::Question, text);
    const QPushButton* agree = message.addButton(yes, QMessageBox::YesRole);
    message.addButton(no, QMessageBox::NoRole);
    message.ask();
    return message.box().clickedButton() == agree;
}

QString askText(const BoxStyle& style, const QString& prompt, const QString& accept,
                const QString& cancel) {
    NotebookStyle look(style);
    Placed<QInputDialog> box(style);
    box.setWindowTitle(boxTitle());
    box.setFont(style.font);
    box.setLabelText(oneLineEnds(prompt));
    box.setOkButtonText(accept);
    box.setCancelButtonText(cancel);
    prepareInput(box, style, oneLineEnds(prompt));
    const auto* buttons = box.findChild<QDialogButtonBox*>();
    look.dress(box, buttons ? buttons->button(QDialogButtonBox::Ok) : nullptr);
    return box.exec() == QDialog::Accepted ? box.textValue() : QString();
}

void showAbout(const BoxStyle& style, const QString& title, const QString& text,
               const QString& accept) {
    Message message(style, QMessageBox::Information, title);
    message.box().setInformativeText(oneLineEnds(text));
    message.addButton(accept, QMessageBox::AcceptRole);
    const QIcon program = style.parent ? style.parent->windowIcon() : QIcon();
    message.ask(program.pixmap(QSize(1, 1) * style.font.pixelSize() * kAboutIconSize,
                               message.box().devicePixelRatioF()));
}

}  // namespace quillor
