// The power goes at any moment of a save: whatever of it has reached the medium by then, in
// whatever order, the file is the old one or the new one, whole.
#include <algorithm>
#include <functional>
#include <optional>

#include <gtest/gtest.h>

#include "core/files.h"
#include "core/memory_disk.h"
#include "core/progress.h"
#include "core/settings_file.h"
#include "core/topic_library.h"

namespace quillor::testing {
namespace {

using Path = std::filesystem::path;

// What was done to the disk. A write reaches the medium whole, in part or not at all until
// its file is flushed, a name until its folder is.
struct Step {
    enum class Kind { Make, Write, Flush, Rename, Remove, FlushFolder };
    Kind kind;
    Path path;
    std::string bytes;  // that are written
    Path to;            // the new name
};

class WatchedDisk : public MemoryDisk {
  public:
    std::vector<Step> steps;
    bool flushes = true;  // false: as if a save forgot to flush its file

    std::unique_ptr<FileWriter> create(const Path& file) override {
        auto writer = MemoryDisk::create(file);
        if (!writer)
            return nullptr;
        steps.push_back({Step::Kind::Make, file, {}, {}});
        return std::make_unique<Writer>(*this, file, std::move(writer));
    }
    void replace(const Path& from, const Path& to) override {
        MemoryDisk::replace(from, to);
        steps.push_back({Step::Kind::Rename, from, {}, to});
    }
    void remove(const Path& file) override {
        MemoryDisk::remove(file);
        steps.push_back({Step::Kind::Remove, file, {}, {}});
    }
    void flushFolder(const Path& folder) override {
        steps.push_back({Step::Kind::FlushFolder, folder, {}, {}});
    }

  private:
    class Writer : public FileWriter {
      public:
        Writer(WatchedDisk& disk, Path file, std::unique_ptr<FileWriter> below)
            : disk_(disk), file_(std::move(file)), below_(std::move(below)) {}
        void write(std::string_view bytes) override {
            below_->write(bytes);
            disk_.steps.push_back({Step::Kind::Write, file_, std::string(bytes), {}});
        }
        void flush() override {
            if (disk_.flushes)
                disk_.steps.push_back({Step::Kind::Flush, file_, {}, {}});
        }
        void close() override { below_->close(); }

      private:
        WatchedDisk& disk_;
        const Path file_;
        std::unique_ptr<FileWriter> below_;
    };
};

// Everything that can stand on the medium when the power goes after the first steps.
class Medium {
  public:
    using Files = std::map<Path, std::string>;

    Medium(Files before, std::span<const Step> done) : before_(std::move(before)), done_(done) {}

    /// Calls `look` with every state there can be.
    void forEach(const std::function<void(const Files&)>& look) {
        std::vector<std::size_t> choices(done_.size(), 0);
        do
            look(after(choices));
        while (isNext(choices));
    }

  private:
    static constexpr std::size_t kLost = 0;
    static constexpr std::size_t kHalf = 1;  // of what a write has written

    // How much of a step is open: one choice where it has reached the medium for sure.
    std::size_t choicesOf(std::size_t step) const {
        const Step& what = done_[step];
        if (what.kind == Step::Kind::Flush || what.kind == Step::Kind::FlushFolder)
            return 1;
        const bool write = what.kind == Step::Kind::Write;
        const auto settles = [&](const Step& later) {
            return write ? later.kind == Step::Kind::Flush && later.path == what.path
                         : later.kind == Step::Kind::FlushFolder &&
                               later.path == what.path.parent_path();
        };
        const auto rest = done_.subspan(step + 1);
        if (std::ranges::any_of(rest, settles))
            return 1;
        return write ? 3 : 2;
    }

    bool isNext(std::vector<std::size_t>& choices) const {
        for (std::size_t i = 0; i < choices.size(); ++i) {
            if (++choices[i] < choicesOf(i))
                return true;
            choices[i] = 0;
        }
        return false;
    }

    Files after(const std::vector<std::size_t>& choices) const {
        std::map<Path, std::string> contents;  // of drafts, by the names they were made under
        std::map<Path, Path> names;            // what stands under a name: which draft
        Files files = before_;
        for (std::size_t i = 0; i < done_.size(); ++i) {
            const Step& step = done_[i];
            const bool settled = choicesOf(i) == 1;
            if (step.kind == Step::Kind::Write) {
                const std::size_t half = settled || choices[i] != kHalf ? 1 : 2;
                if (settled || choices[i] != kLost)
                    contents[step.path] += step.bytes.substr(0, step.bytes.size() / half);
            } else if (!settled && choices[i] == kLost) {
                continue;
            } else if (step.kind == Step::Kind::Rename) {
                names[step.to] = step.path;
                names.erase(step.path);
            } else if (step.kind == Step::Kind::Make) {
                names[step.path] = step.path;
            } else if (step.kind == Step::Kind::Remove) {
                names.erase(step.path);
                files.erase(step.path);
            }
        }
        for (const auto& [name, draft] : names)
            files[name] = contents[draft];
        return files;
    }

    const Files before_;
    const std::span<const Step> done_;
};

// Whether the file is as it was, or as it is now, whenever the power goes.
::testing::AssertionResult survives(const Path& file, const std::optional<std::string>& old,
                                    const WatchedDisk& disk) {
    const std::string& saved = disk.content(file);
    Medium::Files before;
    if (old)
        before[file] = *old;
    int states = 0;
    for (std::size_t done = 0; done <= disk.steps.size(); ++done) {
        std::optional<std::string> torn;
        Medium(before, std::span(disk.steps).first(done)).forEach([&](const Medium::Files& files) {
            ++states;
            const auto found = files.find(file);
            const bool isOld = found == files.end() ? !old : old && found->second == *old;
            if (!isOld && (found == files.end() || found->second != saved))
                torn = found == files.end() ? "gone" : "\"" + found->second + "\"";
        });
        if (torn)
            return ::testing::AssertionFailure() << *torn << " after " << done << " steps";
    }
    if (states < 5)
        return ::testing::AssertionFailure() << "nothing was saved";
    return ::testing::AssertionSuccess();
}

class PowerCut : public ::testing::Test {
  protected:
    WatchedDisk disk;
    const Place folder{"/program", disk};
};

TEST_F(PowerCut, LeavesTheOldFileOrTheNewOne) {
    disk.put("/program/f", "the old one");
    writeFile(folder / "f", "the new one");
    EXPECT_TRUE(survives("/program/f", "the old one", disk));
}

TEST_F(PowerCut, LeavesNoFileOrTheWholeOne) {
    disk.makeFolder("/program");
    writeNewFile(folder / "f", "the new one");
    EXPECT_TRUE(survives("/program/f", std::nullopt, disk));
}

TEST_F(PowerCut, LeavesTheOldSettingsOrTheNewOnes) {
    GameSettings settings;
    eSaveSettings(settings, folder);
    disk.put(settingsFile(folder), "0\r\n");
    disk.steps.clear();
    settings.gbUseSounds = true;
    eSaveSettings(settings, folder);
    EXPECT_TRUE(survives(settingsFile(folder), "0\r\n", disk));
}

TEST_F(PowerCut, LeavesTheOldTopicOrTheNewOne) {
    const Place topic = folder / "Temas" / "A.txt";
    disk.put(topic, "OLD\r\nONE\r\nTWO\r\n");
    writeLines(topic, {u"NEW", u"ONE", u"TWO", u"THREE"});
    EXPECT_TRUE(survives(topic, "OLD\r\nONE\r\nTWO\r\n", disk));
}

TEST_F(PowerCut, LeavesTheOldProgressOrTheNewOne) {
    disk.makeFolder("/program");
    Played played;
    played.won = true;
    played.topic = u"A";
    played.phrase = u"B";
    addToProgress(folder, {played});
    const std::string old = disk.content(progressFile(folder));
    disk.steps.clear();
    addToProgress(folder, {played});
    EXPECT_TRUE(survives(progressFile(folder), old, disk));
}

TEST_F(PowerCut, WouldTearAFileThatWasNotFlushed) {
    disk.flushes = false;
    disk.put("/program/f", "the old one");
    writeFile(folder / "f", "the new one");
    EXPECT_FALSE(survives("/program/f", "the old one", disk));
}

}  // namespace
}  // namespace quillor::testing
