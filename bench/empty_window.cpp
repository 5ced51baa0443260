// A program of the toolkit that shows one empty window, so wide and high in pixels as its
// arguments say: what the game is measured by. With a third one a word stands in the window,
// which is what any program pays for text.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    QMainWindow window;
    window.setWindowTitle("Empty");
    window.resize(arguments.value(1).toInt(), arguments.value(2).toInt());
    if (arguments.size() > 3)
        window.setCentralWidget(new QLabel(arguments[3]));
    window.show();
    return QApplication::exec();
}
