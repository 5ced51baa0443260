// What the program asks of the script: each by a function that the compiler makes of
// JavaScript. Nobody else touches the browser.
#pragma once

#include <cstdint>
#include <string>

#include "core/types.h"
#include "web/messages.h"

namespace quillor::bridge {

/// Has the script show what has changed.
void show(const Messages& messages);

/// Waits for a box, a menu or a sound that the script opens, while the page lives on, and
/// returns the number that it was answered with.
int wait(const Messages& request);
/// The text that the latest box was answered with.
Text answer();

/// Has the script do something at once; what, stands in the request.
void command(const Messages& request);

bool isFullScreen();
std::int64_t milliseconds();  // since whenever; never run backwards
std::uint64_t clockReading();

/// Has the browser keep a file, or a folder whose name ends with a slash. `isNew`: unless
/// another tab has made one of that name meanwhile.
void keepFile(const std::string& path, const std::string& bytes, bool isNew);
void dropFile(const std::string& path);

}  // namespace quillor::bridge
