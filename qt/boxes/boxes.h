// The small boxes that stand over a window until they are answered.
#pragma once

#include <QString>
#include <functional>
#include <memory>

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

/// Words that stand, with one button, until this object goes. The button, Escape and the
/// close button do what `refused` does.
class Notice {
  public:
    Notice(const BoxStyle& style, const QString& text, const QString& button,
           std::function<void()> refused);
    ~Notice();
    Notice(const Notice&) = delete;
    Notice& operator=(const Notice&) = delete;

  private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace quillor
