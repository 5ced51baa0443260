// The machine as a page has it.
#pragma once

#include <array>
#include <functional>

#include "app/program.h"
#include "core/random.h"
#include "toolkit/desktop.h"
#include "web/page_shell.h"

namespace quillor {

class PageDesktop : public Desktop {
  public:
    explicit PageDesktop(PageShell& shell);
    /// To be called before anything else is.
    void attach(Program& program);

    void messageBox(MessageIcon icon, TextView text) override;
    bool question(TextView text, bool yesLoses = false) override;
    Text inputBox(TextView prompt) override;
    void aboutBox(TextView title, TextView text) override;
    Text clipboard() override;
    void setClipboard(TextView text) override;
    /// The fonts come with the page.
    bool fontPresent(TextView) override { return true; }
    /// The script decodes it, and keeps the latest. Throws std::runtime_error when it is none.
    ImageRef loadPicture(const Place& file) override;
    void open(const std::filesystem::path& file) override;
    void openAddress(TextView page, TextView sought) override;
    /// One byte that stands for the sound; the script has the sounds themselves.
    std::span<const std::byte> sound(int id) override;
    void playWave(std::span<const std::byte> image) override;
    Preferences preferences() const override { return shell_.preferences(); }
    TimeOfDay timeOfDay() override;
    double random() override { return random_.next(); }
    void seedRandom() override;
    void show(Screen& screen) override { shell_.show(screen); }
    void close(Screen& screen) override { shell_.close(screen); }
    void popUp(Screen& screen, MenuItem& menu, const Control* under = nullptr) override;
    bool isFullScreen() const override;
    void setFullScreen(bool on) override;
    /// What follows the end.
    void startProgram() override { startsAnew_ = true; }
    /// Closes the page where the browser lets it; elsewhere, and for a new start, loads it anew.
    void end() override;

    /// Topic files out of the page and into it, by a box of the page's own. Returns whether
    /// the player's picture is to go, which is asked where there is one.
    bool topicsBox(const Screen& screen, bool hasPicture);

  private:
    Messages& begin(Messages& request, const char* box) const;
    void buttons(Messages& request, std::initializer_list<TextPair> captions, int main = 1) const;
    int ask(Messages& request);

    PageShell& shell_;
    Program* program_ = nullptr;
    Random random_;
    std::array<std::byte, 7> sounds_;
    bool startsAnew_ = false;
};

}  // namespace quillor
