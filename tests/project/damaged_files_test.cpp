// The whole program on settings and colour files as nobody of ours has written them.
#include <algorithm>
#include <numeric>
#include <string>

#include "tests/support/game_test.h"

namespace quillor::testing {
namespace {

struct Damage {
    std::string name;
    std::string bytes;
};

std::string times(int count, const std::string& line) {
    std::string lines;
    for (int i = 0; i < count; ++i)
        lines += line + "\r\n";
    return lines;
}

std::string everyByte() {
    std::string bytes(256, '\0');
    std::iota(bytes.begin(), bytes.end(), '\0');
    return bytes;
}

std::string nameOf(const ::testing::TestParamInfo<Damage>& damage) {
    return damage.param.name;
}

class DamagedFile : public GameTest, public ::testing::WithParamInterface<Damage> {
  protected:
    /// Starts the program on the file, with two topics of phrases of the same letters.
    void startWith(const std::string& file) {
        run.folder.write("English.txt", "");
        run.folder.write(file, GetParam().bytes);
        addTopic(u"FIRST\r\nabc\r\nbca\r\ncab");
        addTopic(u"SECOND\r\nabc\r\nbca\r\ncab");
        run.show(ScreenId::Start);
        desktop.advance(2000);
    }
    void winSecondTopic() {
        player.click("lblOption(0)");
        player.press(key::kReturn);
        player.selectItem("lstTopics", 1);
        player.press(key::kReturn);
        player.type(u"abc");
        EXPECT_EQ(settings.gsTopicName, u"SECOND");
        EXPECT_EQ(settings.giGameState, kWon);
    }
};

class DamagedSettingsFile : public DamagedFile {};

TEST_P(DamagedSettingsFile, LetsTheGameBePlayed) {
    startWith("Quillor-Config.ini");
    winSecondTopic();
}

TEST_P(DamagedSettingsFile, LetsTheSettingsBeChanged) {
    startWith("Quillor-Config.ini");
    player.click("lblOption(7)");
    player.click("lblDs(1)");
    const std::string written = run.folder.read("Quillor-Config.ini");
    EXPECT_EQ(written.substr(0, 3), "1\r\n");
    EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 11);
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedSettingsFile,
                         ::testing::Values(Damage{"Empty", ""}, Damage{"ThreeLines", times(3, "1")},
                                           Damage{"FiveHundredLines", times(500, "0")},
                                           Damage{"Words", "design\r\n" + times(10, "yes")},
                                           Damage{"TooLargeNumbers", times(11, "99999")},
                                           Damage{"TopicBelowTheFirst", times(10, "0") + "-5\r\n"},
                                           Damage{"TopicBehindTheLast", times(10, "0") + "12\r\n"},
                                           Damage{"NoText", everyByte()}),
                         nameOf);

class DamagedColorFile : public DamagedFile {};

TEST_P(DamagedColorFile, LetsTheGameBePlayed) {
    startWith("Color.txt");
    winSecondTopic();
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedColorFile,
                         ::testing::Values(Damage{"Words", "blue\r\n"},
                                           Damage{"NegativeNumber", "-16777216\r\n"},
                                           Damage{"Empty", ""}, Damage{"NoText", everyByte()}),
                         nameOf);

}  // namespace
}  // namespace quillor::testing
