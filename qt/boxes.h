// The small boxes that stand over a window until they are answered.
#pragma once

#include <QFont>
#include <QMessageBox>
#include <QString>

namespace quillor {

/// Over which window a box stands (null: none), and the font of its texts.
struct BoxStyle {
    QWidget* parent = nullptr;
    QFont font;
    bool low = false;  // in the lower part of that window, so that what is above can be read
};

void showMessage(const BoxStyle& style, QMessageBox::Icon icon, const QString& text,
                 const QString& accept);

/// True for yes; Escape and the close button mean no.
bool askQuestion(const BoxStyle& style, const QString& text, const QString& yes, const QString& no);

/// What was typed; empty when the box was cancelled.
QString askText(const BoxStyle& style, const QString& prompt, const QString& accept,
                const QString& cancel);

void showAbout(const BoxStyle& style, const QString& title, const QString& text,
               const QString& accept);

}  // namespace quillor
