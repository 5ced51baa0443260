// Which other copy of the program plays in the same folder, and a way to call it.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace quillor::platform {

/// Several copies may run in one folder without loss. Of one player on one desktop
/// a single one is wanted: a second start calls the first.
class RunningCopy {
  public:
    enum class Other {
        None,      // as far as can be known: a network's folder may not tell
        Own,       // the same player's, on the same desktop
        Somebody,  // another player's, or on another desktop
    };

    /// Looks for others, and stands for the program in that folder if there are none.
    /// Waits for a moment for one that is just starting. Never fails.
    explicit RunningCopy(const std::filesystem::path& folder);
    ~RunningCopy();
    RunningCopy(const RunningCopy&) = delete;
    RunningCopy& operator=(const RunningCopy&) = delete;

    Other other() const;

    /// Asks one's own other copy to come to the front, with a message of at most 16 KiB.
    /// False when it does not answer within three seconds.
    bool call(const std::string& message);

    /// What is done when this copy is called. Needs an application.
    void onCall(std::function<void(const std::string& message)> handler);

    /// A copy that starts from now on finds none.
    void letGo();

  private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace quillor::platform
