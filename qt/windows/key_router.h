// Leads a key press through a window: first the screen, then the control that
// has the focus, then the key's character.
#pragma once

#include <QKeyEvent>

#include "qt/windows/screen_link.h"

namespace quillor {

class ControlView;
class Page;

class KeyRouter {
  public:
    KeyRouter(Page& page, ScreenLink& link) : page_(page), link_(link) {}

    void press(QKeyEvent& event);
    /// Text of an input method, typed while no text field has the focus.
    void typeOnScreen(const QString& text);

  private:
    void press(QKeyEvent& event, Screen& screen);
    bool handledByControl(ControlView* view, QKeyEvent& event, Screen& screen);
    bool pressAccessKey(const QKeyEvent& event);
    bool pressButton(ControlView* view, QKeyEvent& event);
    void typeOnScreen(const QString& text, Screen& screen);

    Page& page_;
    ScreenLink& link_;
};

}  // namespace quillor
