// A game that plays itself: real key and mouse events in the real windows, with
// pictures of what they show.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPixmap>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <filesystem>
#include <functional>
#include <vector>

#include "app/program.h"
#include "toolkit/screen.h"

class QWidget;

namespace quillor {

class Shell;

/// One thing that the tour waits for, and then does.
struct TourStep {
    QString name;  // for the complaint when it cannot be done
    std::function<bool()> ready;
    std::function<void()> act;
};

/// Runs a list of steps beside the program's own events, each as soon as it is
/// ready. One that is not ready for long ends the tour with a complaint. It asks
/// for no active window: on some desktops there is none without a keyboard.
class Tour : public QObject {
  public:
    /// Pictures go into `folder`, numbered in their order. `finished` is told
    /// how the tour went; an empty text is well.
    Tour(const Shell& shell, QString folder, std::function<void(QString)> finished);

    void start(std::vector<TourStep> steps);

    // What a script is made of. Controls and timers are named by their ids and
    // looked for on the screen in front.
    TourStep waitFor(const QString& wanted) const;
    TourStep waitForBox() const;
    /// Until the line reaches as far as that, in twips.
    TourStep waitForLine(const QString& id, Twips reach) const;
    TourStep waitUntilShown(const QString& id) const;
    /// Until what these timers move has come to its end.
    TourStep waitForRest(const QStringList& timers) const;
    /// Until a label's caption contains the text.
    TourStep expect(const QString& id, const QString& text) const;
    TourStep key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    TourStep type(const QString& character) const;
    TourStep moveTo(const QString& id) const;
    /// To the window's corner, where nothing is.
    TourStep moveAway() const;
    TourStep press(const QString& id) const;
    TourStep release(const QString& id) const;
    TourStep closeWindow() const;
    TourStep picture(const QString& name);

  private:
    QWidget* front() const;
    QWidget* control(const QString& id) const;
    const Screen* screen() const;
    void next();
    QPixmap grabAll() const;
    QList<QWidget*> windowsFromBack() const;
    void save(const QString& name);
    QString pictureFile(const QString& name);

    const Shell& shell_;
    QString folder_;
    std::function<void(QString)> finished_;
    std::vector<TourStep> steps_;
    std::size_t at_ = 0;
    int pictures_ = 0;
    QElapsedTimer waiting_;
};

/// Puts a topic with a known answer into an empty program folder, and takes
/// over what changes the look from `model` (empty: nothing): the language
/// marker, the colour file and the picture.
void prepareTourFolder(const std::filesystem::path& folder, const std::filesystem::path& model);

/// The steps, in the language of the program. Ends the program.
std::vector<TourStep> tourScript(Tour& tour, bool english);

}  // namespace quillor
