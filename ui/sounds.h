// The game's sounds: what is to be played next, and whether anything is.
#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "app/program.h"

namespace quillor {

/// Values of `SoundToPlay`: the carried sound 100 + value. Of the seven that are carried,
/// 101 and 107 are never asked for.
namespace sound {
inline constexpr int kNone = 0;
inline constexpr int kNewGame = 2;
inline constexpr int kDeath = 3;
inline constexpr int kMistake = 4;
inline constexpr int kVictory = 5;
inline constexpr int kGoodLetter = 6;
}  // namespace sound

class Sounds {
  public:
    explicit Sounds(Program& program);

    ControlArray<Label, 0, 0> lblWave{"lblWave"};
    Shape shpWave;
    Timer tmrSound;

    /// Asks the machine for the carried sounds, 101..107.
    void load();
    /// Names the sound to play next; it plays 20 ms later if sounds are on.
    /// A request made before that replaces it.
    void request(int soundToPlay);
    /// Only names it, in place of what has not played yet.
    void name(int soundToPlay) { SoundToPlay_ = soundToPlay; }
    /// Plays what is named, if sounds are on.
    void playNamed();
    /// Shows on the loudspeaker whether sounds are on.
    void eActiveSound();
    void eTranslate();

  private:
    static constexpr int kSounds = 7;

    void ePlay_Sound(std::span<const std::byte> image);
    void tmrSound_Timer();

    Program& program_;
    GameSettings& settings_;
    int SoundToPlay_ = sound::kNone;
    std::array<std::span<const std::byte>, kSounds> images_{};
};

}  // namespace quillor
