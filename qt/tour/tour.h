// A game that plays itself: real key and mouse events in the real windows, with
// pictures of what they show.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>
#include <QString>
#include <functional>
#include <vector>

class QWidget;

namespace quillor {

/// One thing that the tour waits for, and then does.
struct TourStep {
    QString name;  // for the complaint when it cannot be done
    int pause;     // ms between the step before it and this one
    std::function<bool()> ready;
    std::function<void()> act;
};

/// Runs a list of steps beside the program's own events. A step that is not
/// ready within some seconds ends the tour with a complaint.
class Tour : public QObject {
  public:
    /// Pictures go into `folder`, numbered in their order. `finished` is told
    /// how the tour went; an empty text is well.
    Tour(QString folder, std::function<void(QString)> finished);

    void start(std::vector<TourStep> steps);

    // What a script is made of. Controls are named by their ids and looked for
    // in the window in front.
    TourStep waitFor(const QString& window) const;
    TourStep key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    TourStep type(const QString& character) const;
    TourStep moveTo(const QString& id) const;
    /// To the window's corner, where nothing is.
    TourStep moveAway() const;
    TourStep press(const QString& id) const;
    TourStep release(const QString& id) const;
    /// Waits until a label's caption contains the text.
    TourStep expect(const QString& id, const QString& text) const;
    TourStep waitForBox() const;
    TourStep closeWindow() const;
    TourStep picture(const QString& name, int pause = 350);

  private:
    void next();
    void save(const QString& name);
    QString pictureFile(const QString& name);

    QString folder_;
    std::function<void(QString)> finished_;
    std::vector<TourStep> steps_;
    std::size_t at_ = 0;
    int pictures_ = 0;
    QElapsedTimer waiting_;
};

}  // namespace quillor
