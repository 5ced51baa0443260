// What stands beside the board and follows the state of the game: the status
// line with its dots, the play button, and the clock.
#pragma once

#include <functional>

#include "app/program.h"
#include "game/rules/round.h"

namespace quillor {

class StatusLine {
  public:
    explicit StatusLine(Program& program);

    Label lblStatus;
    Timer tmrState;

    /// The caption of the game's state; a new game begins without dots.
    void show();

  private:
    void tmrState_Timer();

    Program& program_;
    std::size_t dots_ = 0;  // on either side of the caption while playing, 0..3
};

class PlayButton {
  public:
    PlayButton(Program& program, std::function<void()> mouseCame);

    Shape shpPlay;
    ControlArray<Label, 0, 0> lblPlay{"lblPlay"};

    void eTranslate();
    /// The caption of the game's state.
    void show();
    /// What it is painted in while the mouse is elsewhere.
    void setAccent(Color color);
    /// The mouse is elsewhere.
    void leave();

  private:
    Program& program_;
    Color accent_ = 0;
    bool hovered_ = false;
};

class ClockLine {
  public:
    /// `onSecond` runs whenever another second of the day has begun while the clock runs.
    ClockLine(Program& program, std::function<void()> onSecond);

    Label lblTime;
    Timer tmrTime;

    /// The clock appears and runs.
    void start(const Round& round);
    /// The time left, as minutes and seconds.
    void show(const Round& round);
    /// The clock stops and is gone.
    void stop();

  private:
    void tmrTime_Timer();

    Program& program_;
    std::function<void()> onSecond_;
    TimeOfDay lastSecond_;
};

}  // namespace quillor
