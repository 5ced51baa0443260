// Runs the shell's tests with an application that has no display.
#include <QApplication>

#include <gtest/gtest.h>

#include "qt/boxes/box_style.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QUILLOR_TEST_IDS", "1");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setStyle(new quillor::NotebookStyle);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
