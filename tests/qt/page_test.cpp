// The page of a window: its ground, and files that are dropped onto it.
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "tests/qt/shell_fixture.h"

namespace quillor {

namespace {

using Windows = ShellTest;

TEST_F(Windows, LetAGroundThatSpansTheScreenGoOnToBothEdges) {
    Label bar;
    Shape strip;
    Frame panel;
    Label inside;
    bar.id = "lblBar";
    bar.opaque = panel.opaque = true;
    screen.add(bar).place(0, 900, screen.width, 600);
    screen.add(strip).place(0, 1800, screen.width, 600);
    screen.add(panel).place(0, 2700, screen.width, 600);
    screen.add(inside, &panel).place(300, 0, 600, 600);
    open().resize(1720, 810);
    EXPECT_EQ(widgetOf(bar).geometry(), QRect(0, 90, 1720, 60));
    EXPECT_EQ(widgetOf(strip).geometry(), QRect(0, 180, 1720, 60));
    EXPECT_EQ(widgetOf(panel).geometry(), QRect(0, 270, 1720, 60));
    EXPECT_EQ(widgetOf(inside).geometry(), QRect(230, 0, 60, 60));
}

TEST_F(Windows, LeaveWhatHasNoGroundOrDoesNotSpanTheScreenWhereItIs) {
    Label clear;
    Label narrow;
    narrow.opaque = true;
    screen.add(clear).place(0, 900, screen.width, 600);
    screen.add(narrow).place(0, 1800, screen.width - 60, 600);
    open().resize(1720, 810);
    EXPECT_EQ(widgetOf(clear).geometry(), QRect(200, 90, 1320, 60));
    EXPECT_EQ(widgetOf(narrow).geometry(), QRect(200, 180, 1314, 60));
}

TEST_F(Windows, HangAScreenWithABarAlongItsTopFromTheirOwn) {
    Label bar;
    Label below;
    bar.opaque = true;
    screen.add(bar).place(0, 0, screen.width, 600);
    addButton(below, "lbl", 0, 600);
    open().resize(1320, 1210);
    EXPECT_EQ(widgetOf(bar).geometry(), QRect(0, 0, 1320, 60));
    EXPECT_EQ(widgetOf(below).geometry().top(), 60);
}

TEST_F(Windows, FillTheirWholeRoomWithThePaper) {
    Picture back;
    Picture sameThroughAFrame;
    Frame frame;
    screen.add(back).place(0, 0, screen.width, screen.height);
    screen.add(frame).place(3000, 2400, 3000, 3000);
    screen.add(sameThroughAFrame, &frame).place(-3000, -2400, screen.width, screen.height);
    PageWindow& window = open();
    for (const QSize size : {QSize(1720, 810), QSize(1320, 1210)}) {
        window.resize(size);
        EXPECT_EQ(widgetOf(back).geometry(), QRect(QPoint(), size));
        QWidget& other = widgetOf(sameThroughAFrame);
        EXPECT_EQ(other.size(), size);
        EXPECT_EQ(other.mapTo(window.page(), QPoint()), QPoint());
    }
}

class Dropping : public Windows {
  protected:
    std::vector<std::filesystem::path> dropped;
    Dropping() {
        screen.filesHandler = [this](const auto& files) { dropped = files; };
    }
    static bool drop(QWidget& on, QMimeData& what) {
        QDragEnterEvent enter({1, 1}, Qt::CopyAction, &what, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&on, &enter);
        QDropEvent event({1, 1}, Qt::CopyAction, &what, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        if (enter.isAccepted())
            QApplication::sendEvent(&on, &event);
        QCoreApplication::processEvents();
        return event.isAccepted();
    }
    static void setFile(QMimeData& data, const QString& path) {
        data.setUrls({QUrl::fromLocalFile(path), QUrl("http://example.org/x.txt")});
    }
};

TEST_F(Dropping, HandsLocalFilesToTheScreen) {
    open();
    QMimeData data;
    setFile(data, QStringLiteral("/tmp/mis años.txt"));
    EXPECT_TRUE(drop(*shell.find(&screen), data));
    EXPECT_EQ(dropped, std::vector{std::filesystem::path(u8"/tmp/mis años.txt")});
}

TEST_F(Dropping, OnAFieldGivesTheScreenFilesAndTheFieldText) {
    TextField field;
    addField(field, "txt", 0, 0);
    open();
    QMimeData file;
    setFile(file, "/tmp/a.txt");
    EXPECT_TRUE(drop(widgetOf(field), file));
    EXPECT_EQ(dropped.size(), 1U);
    EXPECT_EQ(field.text(), u"");
    QMimeData text;
    text.setText("abc");
    EXPECT_TRUE(drop(widgetOf(field), text));
    EXPECT_EQ(field.text(), u"abc");
}

TEST_F(Dropping, IsRefusedWhereTheScreenTakesNoFiles) {
    screen.filesHandler = nullptr;
    open();
    QMimeData data;
    setFile(data, "/tmp/a.txt");
    EXPECT_FALSE(drop(*shell.find(&screen), data));
}

TEST_F(Dropping, IsRefusedWhileTheScreenTakesNoInput) {
    open();
    screen.enabled = false;
    QMimeData data;
    setFile(data, "/tmp/a.txt");
    EXPECT_FALSE(drop(*shell.find(&screen), data));
    EXPECT_TRUE(dropped.empty());
}

}  // namespace

}  // namespace quillor
