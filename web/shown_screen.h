// One open screen as the page shows it: its controls, where the focus is, and what of both
// the script has been told.
#pragma once

#include <optional>
#include <vector>

#include "toolkit/focus.h"
#include "toolkit/scheme.h"
#include "toolkit/screen.h"
#include "toolkit/shown_control.h"
#include "web/messages.h"

namespace quillor {

class ShownScreen {
  public:
    /// `number` is what the script knows it by; `over` that of the screen below, or 0.
    ShownScreen(int number, int over, Screen& screen);

    int number() const { return number_; }
    Screen& screen() const { return screen_; }
    Focus& focus() { return focus_; }
    /// Null where there is no such control.
    const ControlRef* at(int index) const;
    int indexOf(const Control* control) const;  // -1: none

    /// What its sheet is, also of a screen that has one layout alone.
    Sheet sheet() const;
    /// Tells of all that has changed since the last call, at the first one of everything. `twip`
    /// is how many pixels one of them has on the page.
    void tell(Messages& messages, const Scheme& scheme, double twip);

  private:
    struct Told {
        ShownControl shown;
        std::optional<Inked> inked;
        int motions = 0;
        bool first = true;
    };
    void tellOpening(Messages& messages) const;
    void tellScreen(Messages& messages);
    void tellControl(Messages& messages, int index, const Grounds& grounds, const Scheme& scheme,
                     bool repaint);
    bool takeInk(Told& told, const ControlRef& ref, const Grounds& grounds,
                 const Scheme& scheme) const;

    const int number_;
    const int over_;
    Screen& screen_;
    Focus focus_;
    std::vector<Told> told_;  // one for each control
    bool opened_ = false;
    Area size_;
    Sheet sheet_;
    Text title_;
    bool enabled_ = true;
    int focused_ = -1;
    Scheme scheme_;
    double twip_ = 0;
};

}  // namespace quillor
