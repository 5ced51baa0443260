// The small boxes that stand over a window until they are answered.
#pragma once

#include <QString>

#include "qt/boxes/box_style.h"

namespace quillor {

void showMessage(const BoxStyle& style, BoxSign sign, const QString& text, const QString& accept);

/// True for yes; Escape and the close button mean no, and so does Return where yes loses
/// something.
bool askQuestion(const BoxStyle& style, const QString& text, const QString& yes, const QString& no,
                 bool yesLoses = false);

/// What was typed; empty when the box was cancelled.
QString askText(const BoxStyle& style, const QString& prompt, const QString& accept,
                const QString& cancel);

void showAbout(const BoxStyle& style, const QString& title, const QString& text,
               const QString& accept);

}  // namespace quillor
