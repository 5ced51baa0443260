// Work that may take long before there is a window: it is done on a thread of its own, and
// when the player has waited for a while, words say what for.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include "qt/boxes/boxes.h"

namespace quillor {

class Waiting {
  public:
    struct Words {
        QString text;
        QString button;  // which does what `refused` does
        std::function<void()> refused;
    };
    /// The words are shown once so long has been waited, over all, and stand until `stop`.
    Waiting(Words words, std::chrono::milliseconds patience);
    /// What has been begun must be over.
    ~Waiting();
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;

    /// Has work done, and returns at once. One at a time.
    void begin(std::function<void()> work);
    /// Waits for it, but not so long that words would be shown; needs no application. Throws
    /// what the work has thrown.
    void forAMoment();
    /// Waits until it is over. Throws what the work has thrown.
    void toItsEnd();

    /// Begins and waits.
    void during(const std::function<void()>& work);

    /// Takes the words away. What is begun later has all the patience again.
    void stop();

  private:
    class Worker;

    bool isOverInTime();

    std::unique_ptr<Worker> worker_;
    Words words_;
    const std::chrono::milliseconds patience_;
    std::chrono::steady_clock::duration left_;
    std::optional<Notice> notice_;
};

}  // namespace quillor
