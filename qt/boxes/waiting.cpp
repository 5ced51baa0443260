// One thread for all the work, because a start has hundreds of small pieces of it.
#include "qt/boxes/waiting.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <utility>

namespace quillor {

class Waiting::Worker {
  public:
    Worker() : thread_([this] { run(); }) {}
    ~Worker() {
        {
            const std::lock_guard lock(mutex_);
            ending_ = true;
        }
        changed_.notify_all();
        thread_.join();
    }
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    void begin(std::function<void()> work) {
        {
            const std::lock_guard lock(mutex_);
            work_ = std::move(work);
        }
        changed_.notify_all();
    }
    bool isOver(std::chrono::steady_clock::time_point end) {
        std::unique_lock lock(mutex_);
        return changed_.wait_until(lock, end, [this] { return !work_; });
    }
    /// Events are delivered until the work is over.
    void deliverEvents() {
        {
            const std::lock_guard lock(mutex_);
            wakes_ = true;
        }
        while (!isOver(std::chrono::steady_clock::now()))
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    /// Waits whatever time it takes, and throws what the work has thrown.
    void toItsEnd() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return !work_; });
        wakes_ = false;
        if (const std::exception_ptr error = std::exchange(error_, nullptr))
            std::rethrow_exception(error);
    }

  private:
    void run() {
        std::unique_lock lock(mutex_);
        for (;;) {
            changed_.wait(lock, [this] { return ending_ || work_; });
            if (!work_)
                return;
            lock.unlock();
            std::exception_ptr error;
            try {
                work_();
            } catch (...) {
                error = std::current_exception();
            }
            lock.lock();
            error_ = error;
            work_ = nullptr;
            if (wakes_)
                QCoreApplication::eventDispatcher()->wakeUp();
            changed_.notify_all();
        }
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::function<void()> work_;  // null: none, or it is over
    std::exception_ptr error_;
    bool wakes_ = false;  // who waits for events
    bool ending_ = false;
    std::thread thread_;  // last: it uses all the others
};

Waiting::Waiting(Words words, std::chrono::milliseconds patience)
    : worker_(std::make_unique<Worker>()),
      words_(std::move(words)),
      patience_(patience),
      left_(patience) {}

Waiting::~Waiting() = default;

void Waiting::begin(std::function<void()> work) {
    worker_->begin(std::move(work));
}

bool Waiting::isOverInTime() {
    const auto start = std::chrono::steady_clock::now();
    const bool over = worker_->isOver(start + left_);
    left_ -= std::chrono::steady_clock::now() - start;
    return over;
}

void Waiting::forAMoment() {
    if (isOverInTime())
        worker_->toItsEnd();
}

// Events are looked at only when it takes long: until then nothing is on show.
void Waiting::toItsEnd() {
    if (isOverInTime())
        return worker_->toItsEnd();
    if (!notice_)
        notice_.emplace(BoxStyle{}, words_.text, words_.button, words_.refused);
    worker_->deliverEvents();
    worker_->toItsEnd();
}

void Waiting::during(const std::function<void()>& work) {
    begin(work);
    toItsEnd();
}

void Waiting::stop() {
    notice_.reset();
    left_ = patience_;
}

}  // namespace quillor
