// Plays the program that this is loaded into (LD_PRELOAD) by itself, on a display that need
// not exist (QT_QPA_PLATFORM=offscreen). QUILLOR_KEYS has what is typed, in words with a
// blank between:
//   a            a key, and with it the letter or sign
//   Return …     a key by its name (kNamed)
//   ^q           a key with Ctrl
//   @Part        waits until the title of the window that has the keys has that in it
// Where nothing comes of waiting, a box is left by Escape, and the last key is pressed again;
// after some tries the next word is taken, or the program ended.
#include <QCoreApplication>
#include <QGuiApplication>
#include <QHash>
#include <QKeyEvent>
#include <QStringList>
#include <QTimer>
#include <QWindow>
#include <utility>

namespace {

const QHash<QString, std::pair<Qt::Key, QString>> kNamed{{"Return", {Qt::Key_Return, "\r"}},
                                                         {"Backspace", {Qt::Key_Backspace, "\b"}},
                                                         {"Escape", {Qt::Key_Escape, ""}},
                                                         {"Tab", {Qt::Key_Tab, "\t"}}};

struct Typist : QObject {
    Typist() {
        connect(&timer_, &QTimer::timeout, this, [this] { typeNext(); });
        timer_.start(1);
    }

    void typeNext() {
        QWindow* const window = target();
        if (window == nullptr)
            return;
        const QString word = words_.value(0);
        if (word.size() > 1 && word.startsWith('@') && window->title().contains(word.mid(1))) {
            words_.removeFirst();
            tries_ = 0;
        } else if (!word.isEmpty() && (word.size() == 1 || !word.startsWith('@'))) {
            words_.removeFirst();
            last_ = word;
            press(*window, word);
        } else if (++waited_ > kPatience) {
            press(*window, window->title() == "Quillor" ? "Escape" : last_);
            giveUpAt(kTries);
        } else {
            return;
        }
        waited_ = 0;
    }

  private:
    // What is waited for no more does not come: a disk that fails may have prevented it.
    void giveUpAt(int tries) {
        if (++tries_ < tries)
            return;
        tries_ = 0;
        if (words_.isEmpty())
            QCoreApplication::exit();  // without a question that nobody answers
        else
            words_.removeFirst();
    }

    // Without a window manager none becomes active when a box has closed.
    static QWindow* target() {
        if (QWindow* const window = QGuiApplication::focusWindow())
            return window;
        for (QWindow* const window : QGuiApplication::topLevelWindows())
            if (window->isVisible())
                return window;
        return nullptr;
    }

    static void press(QWindow& window, const QString& word) {
        if (word.isEmpty())
            return;
        const bool control = word.size() == 2 && word.startsWith('^');
        const QString name = control ? word.mid(1) : word;
        int key = name.front().toUpper().unicode();
        QString text = control ? QString() : name;
        if (const auto named = kNamed.find(name); named != kNamed.end()) {
            key = named->first;
            text = named->second;
        }
        const auto held = control ? Qt::ControlModifier : Qt::NoModifier;
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
            QCoreApplication::postEvent(&window, new QKeyEvent(type, key, held, text));
    }

    static constexpr int kPatience = 1000;  // ticks
    static constexpr int kTries = 10;

    QTimer timer_;
    QString last_;
    int waited_ = 0;
    int tries_ = 0;
    QStringList words_ = qEnvironmentVariable("QUILLOR_KEYS").split(' ', Qt::SkipEmptyParts);
};

void start() {
    (new Typist)->setParent(QCoreApplication::instance());
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(start)
