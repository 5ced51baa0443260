// The machine as the screens ask for it, by way of the windowing toolkit.
#pragma once

#include <functional>
#include <memory>

#include "app/program.h"
#include "core/random.h"
#include "qt/boxes/boxes.h"
#include "qt/windows/shell.h"
#include "sound/player.h"
#include "toolkit/desktop.h"

namespace quillor {

class QtDesktop : public Desktop {
  public:
    QtDesktop(Shell& shell, std::unique_ptr<SoundPlayer> player);

    /// The program whose language the boxes speak and whose closed screens are
    /// destroyed when it is safe. To be called before the first screen shows.
    void attach(Program& program);

    /// Called before the program's executable is started anew.
    std::function<void()> beforeRestart;

    void messageBox(MessageIcon icon, TextView text) override;
    bool question(TextView text, bool yesLoses) override;
    Text inputBox(TextView prompt) override;
    void aboutBox(TextView title, TextView text) override;
    Text clipboard() override;
    void setClipboard(TextView text) override;
    bool fontPresent(TextView name) override;
    ImageRef loadPicture(const Place& file) override;
    void open(const std::filesystem::path& file) override;
    void openAddress(TextView page, TextView sought) override;
    std::span<const std::byte> sound(int id) override;
    void playWave(std::span<const std::byte> image) override;
    Preferences preferences() const override { return shell_.preferences; }
    TimeOfDay timeOfDay() override;
    double random() override;
    void seedRandom() override;
    void show(Screen& screen) override;
    void close(Screen& screen) override;
    void popUp(Screen& screen, MenuItem& menu, const Control* under) override;
    bool isFullScreen() const override;
    void setFullScreen(bool on) override;
    void startProgram() override;
    void end() override;

  private:
    BoxStyle boxStyle() const;
    QString lang(const TextPair& pair) const;

    Shell& shell_;
    std::unique_ptr<SoundPlayer> player_;
    Program* program_ = nullptr;
    Random random_;
};

/// The address of a page, which stays as it is, with what is sought there behind
/// it, percent-encoded as UTF-8: blanks, accents, and signs that would mean
/// something in an address ("?", "#", "&") are the phrase's own. Never fails.
QString encodedAddress(TextView page, TextView sought);

}  // namespace quillor
