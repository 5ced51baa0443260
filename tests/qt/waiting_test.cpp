// Work that is waited for before there is a window, and the words about it.
#include "qt/boxes/waiting.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <future>
#include <stdexcept>
#include <thread>

#include <gtest/gtest.h>

#include "qt/system/watched_disk.h"
#include "tests/support/temp_folder.h"

namespace quillor {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds kNever{60'000};
constexpr milliseconds kAtOnce{0};

class WaitingTest : public ::testing::Test {
  protected:
    Waiting::Words words() {
        return {"the words", "Stop", [this] {
                    ++refusals;
                    held.set_value();
                }};
    }
    static QDialog* notice() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* box = qobject_cast<QDialog*>(window); box && box->isVisible())
                return box;
        return nullptr;
    }
    /// Work that takes until `look` has seen the words.
    void seeWords(Waiting& waiting, const std::function<void(QDialog&)>& look) {
        QTimer eyes;
        QObject::connect(&eyes, &QTimer::timeout, [&] {
            if (QDialog* box = notice()) {
                eyes.stop();
                look(*box);
            }
        });
        eyes.start(1);
        waiting.during([this] { held.get_future().wait(); });
    }

    std::promise<void> held;
    int refusals = 0;
};

TEST_F(WaitingTest, IsOverWhenTheWorkIs) {
    Waiting waiting(words(), kNever);
    int done = 0;
    waiting.during([&] { ++done; });
    waiting.during([&] { ++done; });
    EXPECT_EQ(done, 2);
    EXPECT_EQ(notice(), nullptr);
}

TEST_F(WaitingTest, ShowsWordsForWhatTakesLong) {
    Waiting waiting(words(), kAtOnce);
    QString text;
    seeWords(waiting, [&](QDialog& box) {
        for (const QLabel* label : box.findChildren<QLabel*>())
            text += label->text();
        held.set_value();
    });
    EXPECT_EQ(text, "the words");
    EXPECT_EQ(refusals, 0);
    EXPECT_NE(notice(), nullptr) << "more is to come";
    waiting.stop();
    EXPECT_EQ(notice(), nullptr);
}

TEST_F(WaitingTest, TellsThatThePlayerWillNotWait) {
    Waiting waiting(words(), kAtOnce);
    seeWords(waiting, [](QDialog& box) { box.findChild<QPushButton*>()->click(); });
    EXPECT_EQ(refusals, 1);
}

TEST_F(WaitingTest, TakesTheCloseButtonForTheSame) {
    Waiting waiting(words(), kAtOnce);
    seeWords(waiting, [](QDialog& box) { box.close(); });
    EXPECT_EQ(refusals, 1);
}

TEST_F(WaitingTest, ThrowsWhatTheWorkHasThrown) {
    const auto fail = [] { throw std::runtime_error("gone"); };
    Waiting patient(words(), kNever);
    EXPECT_THROW(patient.during(fail), std::runtime_error);
    EXPECT_NO_THROW(patient.during([] {}));
    Waiting impatient(words(), kAtOnce);
    EXPECT_THROW(impatient.during(fail), std::runtime_error);
}

TEST_F(WaitingTest, NeedsNoWindowForAMoment) {
    Waiting waiting(words(), milliseconds(1));
    waiting.begin([this] { held.get_future().wait(); });
    waiting.forAMoment();
    EXPECT_EQ(notice(), nullptr);
    held.set_value();
    waiting.toItsEnd();
}

TEST_F(WaitingTest, HasAllItsPatienceAgainAfterAStop) {
    Waiting waiting(words(), milliseconds(500));
    waiting.during([] { std::this_thread::sleep_for(milliseconds(300)); });
    waiting.stop();
    waiting.during([] { std::this_thread::sleep_for(milliseconds(300)); });
    EXPECT_EQ(notice(), nullptr);
}

// Files that are read and written, too, and not only what the disk itself does.
TEST(WatchedDisk, LetsEveryOperationBeWaitedFor) {
    const testing::TempFolder folder;
    platform::WatchedDisk disk(standardDisk(), folder.path());
    int waits = 0;
    disk.wait = [&](const auto& work) {
        ++waits;
        work();
    };
    const auto writer = disk.create(folder / "a");
    writer->write("text");
    writer->flush();
    writer->close();
    EXPECT_EQ(waits, 4);
    char bytes[9];
    EXPECT_EQ(disk.open(folder / "a")->read(bytes), 4);
    EXPECT_EQ(disk.look(folder / "a").kind, Disk::Kind::File);
    EXPECT_EQ(disk.list(folder.path()).size(), 1);
    EXPECT_TRUE(disk.moveToNew(folder / "a", folder / "b"));
    disk.remove(folder / "b");
    EXPECT_EQ(waits, 10);
}

TEST(WatchedDisk, MakesNoFileWhereSomethingStands) {
    const testing::TempFolder folder;
    folder.write("a", "");
    platform::WatchedDisk disk(standardDisk(), folder.path());
    EXPECT_EQ(disk.create(folder / "a"), nullptr);
}

}  // namespace

}  // namespace quillor
