// The topic folder: its listing, the names that files in it may have, and the loading of
// all files.
#include "core/topic_library.h"

#include <gtest/gtest.h>

#include "core/files.h"
#include "tests/support/faulty_disk.h"
#include "tests/support/temp_folder.h"

namespace quillor {
namespace {

class Library : public ::testing::Test {
  protected:
    void topic(const std::string& name, std::string_view bytes) const {
        folder.write(std::filesystem::path("Temas") / name, bytes);
    }
    void load() { eLoadWords(settings, folder.path()); }
    std::vector<Text> listed() const {
        std::vector<Text> names;
        for (const Place& file : topicFiles(folder / "Temas"))
            names.push_back(fromPath(file.path().filename()));
        return names;
    }
    Text title(int index) const {
        return settings.gaTopicLines.at(static_cast<std::size_t>(index))[0];
    }

    quillor::testing::TempFolder folder;
    GameSettings settings;
};

using Names = std::vector<Text>;

std::string fiftyTwoLines() {
    std::string bytes = "Long\r\n";
    for (int i = 1; i < 52; ++i)
        bytes += "p" + std::to_string(i) + "\r\n";
    return bytes;
}

TEST_F(Library, StandsInAFolderOfItsLanguage) {
    EXPECT_EQ(topicFolder(settings, folder.path()), folder / "Temas");
    settings.gbEnglish = true;
    EXPECT_EQ(topicFolder(settings, folder.path()), folder / "Topics");
}

TEST_F(Library, ListsTextFilesByNameInAnyCase) {
    for (const char* name : {"b.txt", "A.TXT", "c.Txt", "B2.txt", "x.text", "txt", "y.txt.bak"})
        topic(name, "");
    EXPECT_EQ(listed(), (Names{u"A.TXT", u"b.txt", u"B2.txt", u"c.Txt"}));
}

TEST_F(Library, ListsNamesThatDifferInCaseAloneInAStableOrder) {
    if (!folder.tellsCaseApart())
        GTEST_SKIP() << "such names are one file here";
    for (const char* name : {"a.txt", "A.txt", "a.TXT"})
        topic(name, "");
    EXPECT_EQ(listed(), (Names{u"A.txt", u"a.TXT", u"a.txt"}));
}

TEST_F(Library, ListsNamesOfAnyUnicode) {
    for (const TextView name : {u"ñandú.txt", u"мир.txt", u"\U0001F600.txt"})
        topic(toPath(name).string(), "");
    EXPECT_EQ(listed().size(), 3U);
}

TEST_F(Library, DoesNotListFolders) {
    topic("a.txt", "A");
    std::filesystem::create_directory(folder / "Temas" / "b.txt");
    EXPECT_EQ(listed(), Names{u"a.txt"});
}

TEST_F(Library, ListsAFileWithoutAName) {
    topic(".txt", "");
    EXPECT_EQ(listed(), Names{u".txt"});
}

TEST_F(Library, CannotBeListedWithoutAFolder) {
    EXPECT_THROW(listed(), std::runtime_error);
    std::filesystem::create_directory(folder / "Temas");
    EXPECT_EQ(listed(), Names{});
}

TEST_F(Library, IsEmptyWithoutAFolder) {
    load();
    EXPECT_EQ(settings.giTopicMax, -1);
    EXPECT_TRUE(settings.gaTopicLines.empty());
}

TEST_F(Library, IsEmptyWhenTheFolderIsAFile) {
    folder.write("Temas", "no folder");
    load();
    EXPECT_EQ(settings.giTopicMax, -1);
}

TEST_F(Library, CountsOneFileAsZero) {
    topic("a.txt", "One\r\nuno\r\n");
    load();
    EXPECT_EQ(settings.giTopicMax, 0);
    EXPECT_EQ(settings.gaTopicLines.at(0)[1], u"UNO");
}

TEST_F(Library, LoadsEveryTextFileInOrder) {
    topic("b.txt", "second");
    topic("A.txt", "first");
    topic("notes.txt", "third");
    load();
    EXPECT_EQ(settings.giTopicMax, 2);
    EXPECT_EQ(title(0), u"FIRST");
    EXPECT_EQ(title(1), u"SECOND");
    EXPECT_EQ(title(2), u"THIRD");
}

TEST_F(Library, LoadsOnlyTheFolderOfItsLanguage) {
    topic("a.txt", "spanish");
    folder.write("Topics/a.txt", "english");
    settings.gbEnglish = true;
    load();
    EXPECT_EQ(title(0), u"ENGLISH");
}

TEST_F(Library, EndsAtAFileWithAFiftySecondLine) {
    topic("a.txt", "first");
    topic("b.txt", fiftyTwoLines());
    topic("c.txt", "third");
    load();
    EXPECT_EQ(settings.giTopicMax, 2);
    EXPECT_EQ(title(0), u"FIRST");
    EXPECT_EQ(settings.gaTopicLines.at(1)[50], u"P50");
    EXPECT_EQ(title(2), u"");
}

TEST_F(Library, EndsAtAFileThatCannotBeRead) {
    topic("a.txt", "first");
    topic("b.txt", "x");
    std::filesystem::resize_file(folder / "Temas" / "b.txt", 20 << 20);  // more than is taken
    topic("c.txt", "third");
    load();
    EXPECT_EQ(settings.giTopicMax, 2);
    EXPECT_EQ(title(0), u"FIRST");
    EXPECT_EQ(title(1), u"");
    EXPECT_EQ(title(2), u"");
}

// A folder of so many files that each tells its own name.
class LargeDisk : public Disk {
  public:
    explicit LargeDisk(int files) : files_(files) {}
    std::vector<Entry> list(const std::filesystem::path&) const override {
        std::vector<Entry> entries;
        for (int i = files_; i-- > 0;)
            entries.push_back({std::to_string(100'000 + i) + ".txt", Kind::File});
        return entries;
    }
    std::unique_ptr<FileReader> open(const std::filesystem::path& file) const override {
        return std::make_unique<NameReader>(file.filename().string());
    }

  private:
    struct NameReader : FileReader {
        explicit NameReader(std::string name) : bytes(std::move(name)) {}
        std::size_t read(std::span<char> to) override {
            return std::exchange(bytes, {}).copy(to.data(), to.size());
        }
        std::string bytes;
    };
    int files_;
};

TEST_F(Library, LoadsAsManyFilesAsHaveANumberInOrder) {
    LargeDisk disk(32'770);
    eLoadWords(settings, {folder.path(), disk});
    EXPECT_EQ(settings.giTopicMax, 32'767);
    EXPECT_EQ(settings.gaTopicLines.size(), 32'768U);
    EXPECT_EQ(title(0), u"100000.TXT");
    EXPECT_EQ(title(32'767), u"132767.TXT");
}

TEST_F(Library, LoadsAnEmptyFileAsAnEmptyTopic) {
    topic("a.txt", "");
    topic("b.txt", "second");
    load();
    EXPECT_EQ(title(0), u"");
    EXPECT_EQ(title(1), u"SECOND");
}

TEST_F(Library, LoadsAPhraseOfTenMegabytes) {
    topic("a.txt", "Title\r\n" + std::string(10'000'000, 'a') + "\r\nb");
    load();
    EXPECT_EQ(settings.gaTopicLines.at(0)[1].size(), 10'000'000U);
    EXPECT_EQ(settings.gaTopicLines.at(0)[2], u"B");
}

TEST_F(Library, LoadedAgainHoldsNothingOfTheOldFiles) {
    topic("a.txt", "T\r\none\r\ntwo\r\n");
    load();
    topic("a.txt", "T\r\nnew\r\n");
    load();
    EXPECT_EQ(settings.gaTopicLines.at(0)[1], u"NEW");
    EXPECT_EQ(settings.gaTopicLines.at(0)[2], u"");
}

// A package's topics in `packs`, and a program folder to lay them out in.
class LayingOut : public ::testing::Test {
  protected:
    LayingOut() {
        packs.write("Temas/Aves.txt", "AVES\r\n");
        packs.write("Temas/El mar.txt", "EL MAR\r\n");
        packs.write("Topics/Birds.txt", "BIRDS\r\n");
    }
    bool layOut() { return layOutTopics({packs.path(), disk}, {folder.path(), disk}); }
    testing::TempFolder packs;
    testing::TempFolder folder;
    testing::FaultyDisk disk;
};

TEST_F(LayingOut, BringsTheTopicsOfBothLanguages) {
    layOut();
    EXPECT_EQ(folder.read("Temas/Aves.txt"), "AVES\r\n");
    EXPECT_EQ(folder.read("Temas/El mar.txt"), "EL MAR\r\n");
    EXPECT_EQ(folder.read("Topics/Birds.txt"), "BIRDS\r\n");
    EXPECT_EQ(folder.read("Quillor-Packs.txt"),
              "Temas/Aves.txt\r\nTemas/El mar.txt\r\nTopics/Birds.txt\r\n");
}

TEST_F(LayingOut, KeepsWhatThePlayerHasMadeOfThem) {
    layOut();
    folder.write("Temas/Aves.txt", "MINE\r\n");
    std::filesystem::remove(folder / "Topics/Birds.txt");
    layOut();
    EXPECT_EQ(folder.read("Temas/Aves.txt"), "MINE\r\n");
    EXPECT_FALSE(folder.has("Topics/Birds.txt"));
}

TEST_F(LayingOut, ReplacesNoTopicThatWasThereBefore) {
    folder.write("Temas/Aves.txt", "MINE\r\n");
    layOut();
    EXPECT_EQ(folder.read("Temas/Aves.txt"), "MINE\r\n");
    std::filesystem::remove(folder / "Temas/Aves.txt");
    layOut();
    EXPECT_FALSE(folder.has("Temas/Aves.txt"));
}

TEST_F(LayingOut, BringsWhatALaterPackageHasMore) {
    layOut();
    packs.write("Topics/Trees.txt", "TREES\r\n");
    layOut();
    EXPECT_TRUE(folder.has("Topics/Trees.txt"));
    EXPECT_TRUE(folder.read("Quillor-Packs.txt").ends_with("Topics/Trees.txt\r\n"));
}

TEST_F(LayingOut, WithoutAPackageMakesNothing) {
    std::filesystem::remove_all(packs.path());
    layOut();
    EXPECT_EQ(folder.size(), 0);
}

TEST_F(LayingOut, PutsNothingBackWhileTheListCannotBeRead) {
    layOut();
    std::filesystem::remove(folder / "Temas/Aves.txt");
    disk.breakDown(testing::FaultyDisk::Operation::Open);
    layOut();
    disk.mend();
    EXPECT_FALSE(folder.has("Temas/Aves.txt"));
    layOut();
    EXPECT_FALSE(folder.has("Temas/Aves.txt"));
}

TEST_F(LayingOut, TriesAgainWhatCouldNotBeWritten) {
    disk.breakDown(testing::FaultyDisk::Operation::Flush, 2);
    EXPECT_FALSE(layOut());
    EXPECT_TRUE(folder.has("Temas/Aves.txt"));
    EXPECT_FALSE(folder.has("Temas/El mar.txt"));
    disk.mend();
    EXPECT_TRUE(layOut());
    EXPECT_TRUE(folder.has("Temas/El mar.txt"));
    EXPECT_TRUE(folder.has("Topics/Birds.txt"));
}

TEST(FileName, LosesSignsThatSomeSystemDoesNotTake) {
    EXPECT_EQ(withoutForbidden(u"a\\b/c:d*e?f\"g<h>i|j"), u"abcdefghij");
    EXPECT_EQ(withoutForbidden(u"a\tb\r\nc\x7F"), u"abc");
}

TEST(FileName, KeepsStopsBlanksAndAnyLetter) {
    EXPECT_EQ(withoutForbidden(u" EE.UU. ñ Ω. "), u" EE.UU. ñ Ω. ");
}

TEST(FileName, IsMarkedWhereItIsADevice) {
    EXPECT_EQ(besideDevices(u"CON"), u"CON_");
    EXPECT_EQ(besideDevices(u"nul"), u"nul_");
    EXPECT_EQ(besideDevices(u"Lpt9"), u"Lpt9_");
    EXPECT_EQ(besideDevices(u"COM²"), u"COM²_");
    EXPECT_EQ(besideDevices(u"CONIN$"), u"CONIN$_");
}

TEST(FileName, IsMarkedBehindTheDeviceItself) {
    EXPECT_EQ(besideDevices(u"CON.1.2"), u"CON_.1.2");
    EXPECT_EQ(besideDevices(u"PRN "), u"PRN_ ");
    EXPECT_EQ(besideDevices(u"AUX ."), u"AUX_ .");
}

TEST(FileName, IsLeftWhereItOnlyLooksLikeADevice) {
    for (const TextView name : {u"", u".", u"CONE", u"COM", u"COM10", u"COMX", u"A.CON", u"CON_"})
        EXPECT_EQ(besideDevices(name), name);
}

}  // namespace

}  // namespace quillor
