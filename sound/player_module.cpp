#include "sound/player_module.h"

#include <new>

#include "sound/player_thread.h"

extern "C" quillor::SoundPlayer* quillorMakeSoundPlayer() {
    try {
        return new quillor::ThreadedSoundPlayer(quillor::makeSoundDevice());
    } catch (...) {
        return nullptr;
    }
}
