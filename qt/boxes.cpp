#include "qt/boxes.h"

#include <QDialogButtonBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "core/texts.h"
#include "qt/qt_values.h"

namespace quillor {

namespace {

constexpr int kIconSizes = 3;    // of an icon, in font sizes
constexpr int kInputWidth = 24;  // of the input field, in font sizes

QString boxTitle() {
    return toQt(texts::kProgramName);
}

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
    QMessageBox box(style.parent);
    prepare(box, style, icon, text);
    QPushButton* button = box.addButton(accept, QMessageBox::AcceptRole);
    box.setDefaultButton(button);
    box.setEscapeButton(button);
    box.exec();
}

bool askQuestion(const BoxStyle& style, const QString& text, const QString& yes,
                 const QString& no) {
    QMessageBox box(style.parent);
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
    QInputDialog box(style.parent);
    box.setWindowTitle(boxTitle());
    box.setFont(style.font);
    box.setLabelText(oneLineEnds(prompt));
    box.setOkButtonText(accept);
    box.setCancelButtonText(cancel);
    if (auto* field = box.findChild<QLineEdit*>()) {
        field->setMinimumWidth(style.font.pixelSize() * kInputWidth);
        field->setAccessibleName(oneLineEnds(prompt));
    }
    return box.exec() == QDialog::Accepted ? box.textValue() : QString();
}

void showAbout(const BoxStyle& style, const QString& title, const QString& text,
               const QString& accept) {
    QMessageBox box(style.parent);
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
