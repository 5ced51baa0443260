// A program of the toolkit that shows one empty window: what the game is measured by.
#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle("Empty");
    window.resize(880, 540);
    window.show();
    return QApplication::exec();
}
