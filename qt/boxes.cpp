#include "qt/boxes.h"

#include <QInputDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

#include "core/texts.h"
#include "qt/qt_values.h"

namespace quillor {

namespace {

constexpr int kIconSizes = 3;    // of an icon, in font sizes
constexpr int kInputWidth = 24;  // of the input field, in font sizes

QString boxTitle() {
    return toQt(texts::kProgramName);
}

constexpr double kLowPlace = 0.72;  // of the window's height, for a low box's middle

/// A box that knows its place as soon as it knows its size.
template <typename Box>
class Placed : public Box {
  public:
    explicit Placed(const BoxStyle& style) : Box(style.parent), low_(style.low) {}

  protected:
    void showEvent(QShowEvent* event) override {
        Box::showEvent(event);
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
};

QString oneLineEnds(QString text) {
    return text.replace("\r\n", "\n");
}

// The fonts of all parts at once, and an icon of their size.
void prepare(QMessageBox& box, const BoxStyle& style, QMessageBox::Icon icon, const QString& text) {
    box.setWindowTitle(boxTitle());
    box.setFont(style.font);
    box.setTextFormat(Qt::PlainText);
    box.setText(oneLineEnds(text));
    box.setIcon(icon);
    const QPixmap plain = box.iconPixmap();
    const int size = style.font.pixelSize() * kIconSizes;
    if (!plain.isNull() && size > plain.height() / plain.devicePixelRatio())
        box.setIconPixmap(plain.scaledToHeight(static_cast<int>(size * box.devicePixelRatioF()),
                                               Qt::SmoothTransformation));
}

}  // namespace

void showMessage(const BoxStyle& style, QMessageBox::Icon icon, const QString& text,
                 const QString& accept) {
    Placed<QMessageBox> box(style);
    prepare(box, style, icon, text);
    QPushButton* button = box.addButton(accept, QMessageBox::AcceptRole);
    box.setDefaultButton(button);
    box.setEscapeButton(button);
    box.exec();
}

bool askQuestion(const BoxStyle& style, const QString& text, const QString& yes,
                 const QString& no) {
    Placed<QMessageBox> box(style);
    prepare(box, style, QMessageBox::Question, text);
    QPushButton* agree = box.addButton(yes, QMessageBox::YesRole);
    QPushButton* refuse = box.addButton(no, QMessageBox::NoRole);
    box.setDefaultButton(agree);
    box.setEscapeButton(refuse);
    box.exec();
    return box.clickedButton() == agree;
}

QString askText(const BoxStyle& style, const QString& prompt, const QString& accept,
                const QString& cancel) {
    Placed<QInputDialog> box(style);
    box.setWindowTitle(boxTitle());
    box.setFont(style.font);
    box.setLabelText(oneLineEnds(prompt));
    box.setOkButtonText(accept);
    box.setCancelButtonText(cancel);
    if (auto* field = box.findChild<QLineEdit*>()) {
        field->setMinimumWidth(style.font.pixelSize() * kInputWidth);
        field->setAccessibleName(oneLineEnds(prompt));
        field->setContextMenuPolicy(Qt::NoContextMenu);  // not in the program's language
    }
    // Some styles put icons on these buttons; the other boxes have none.
    for (QPushButton* button : box.findChildren<QPushButton*>())
        button->setIcon({});
    return box.exec() == QDialog::Accepted ? box.textValue() : QString();
}

void showAbout(const BoxStyle& style, const QString& title, const QString& text,
               const QString& accept) {
    Placed<QMessageBox> box(style);
    prepare(box, style, QMessageBox::Information, title);
    box.setInformativeText(oneLineEnds(text));
    if (style.parent && !style.parent->windowIcon().isNull())
        box.setIconPixmap(
            style.parent->windowIcon().pixmap(style.font.pixelSize() * kIconSizes * 3 / 2));
    QPushButton* button = box.addButton(accept, QMessageBox::AcceptRole);
    box.setDefaultButton(button);
    box.setEscapeButton(button);
    box.exec();
}

}  // namespace quillor
