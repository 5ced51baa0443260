// Every text that the program shows, in Spanish and in English, side by side: here and in the
// three headers that this one includes.
//
// "&" marks the access key of the letter behind it, "&&" shows one "&". Blanks
// at the ends of tool tips are part of the text. Where the two languages differ
// in form (a missing blank, a colon), that is how they are meant to be.
#pragma once

#include "core/game_settings.h"
#include "core/screen_texts.h"
#include "core/spoken_texts.h"
#include "core/topic_texts.h"
#include "core/types.h"

namespace quillor {

/// Chooses by the interface language, at the moment the text is shown.
inline Text eLang(const GameSettings& settings, TextView spanish, TextView english) {
    return Text(settings.gbEnglish ? english : spanish);
}
inline Text eLang(const GameSettings& settings, const TextPair& pair) {
    return eLang(settings, pair.spanish, pair.english);
}

}  // namespace quillor
