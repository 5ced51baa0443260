// Files of any content in the program folder: settings, colour, progress and topics.
// Whatever they hold the program reads them, and reads what it has written itself.
#include "app/program.h"
#include "core/memory_disk.h"
#include "core/progress.h"
#include "core/settings_file.h"
#include "core/text_codec.h"
#include "core/topic_library.h"
#include "tests/fuzz/bytes.h"
#include "tests/support/fake_desktop.h"
#include "topics/topic_check.h"

namespace quillor::testing {

namespace {

void readSettings(const Place& folder, const MemoryDisk& disk) {
    GameSettings settings;
    settings.gbOptionsOpened = true;
    settings.giTopicMax = 7;
    loadForSettingsScreen(settings, folder);
    loadForGameScreen(settings, folder);
    eSaveSettings(settings, folder);
    const std::string saved = disk.content(settingsFile(folder));
    loadForGameScreen(settings, folder);
    eSaveSettings(settings, folder);
    require(disk.content(settingsFile(folder)) == saved, "what was saved is read back");
}

void readProgressFile(const Place& folder) {
    Played played;
    played.won = true;
    played.score = 1000;
    played.topic = u"TITLE";
    played.phrase = u"PHRASE";
    const std::optional<Progress> before = readProgress(folder);
    addToProgress(folder, {played});
    const std::optional<Progress> after = readProgress(folder);
    require(after.has_value(), "what was written is read");
    require(!before || after->unknown == before->unknown, "what is not known stays");
    require(after->scores.size() <= kMostScores, "the last fifty scores are kept");
}

void readTopic(std::string_view file) {
    const ParsedTopic parsed = parseTopic(file);
    require(parsed.lines >= 0 && parsed.lines <= kTopicLines, "a topic has 51 lines");
    require(countPhrases(parsed.topic) < kTopicLines, "and 50 phrases");
    topicTitle(parsed.topic);
    for (const bool english : {false, true})
        for (const Finding& finding : checkTopic(file, std::nullopt, english))
            require(finding.line >= 1 && !finding.text.empty(), "a finding says where and what");
}

// The colour file is read by the start screen.
void start(const Place& folder) {
    FakeDesktop desktop;
    Program program(desktop, folder);
    desktop.deliver([&] { program.show(ScreenId::Start); });
    desktop.deliver([&] { program.close(*program.find(ScreenId::Start)); });
    program.destroyClosed();
}

}  // namespace

}  // namespace quillor::testing

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillor;
    using namespace quillor::testing;
    Bytes bytes(data, size);
    const std::size_t what = bytes.below(4);
    const std::string_view file = bytes.file();
    MemoryDisk disk;
    const Place folder("/program", disk);
    if (what == 0) {
        disk.put(settingsFile(folder), file);
        readSettings(folder, disk);
    } else if (what == 1) {
        disk.put(progressFile(folder), file);
        readProgressFile(folder);
    } else if (what == 2) {
        disk.put("/program/Color.txt", file);
        start(folder);
    } else {
        readTopic(file);
    }
    return 0;
}
