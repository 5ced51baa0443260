// A screen of the program: what every one has beside its own, the further menu
// "View" and the keys that mean the same everywhere.
#pragma once

#include <deque>
#include <string>

#include "app/program.h"
#include "toolkit/screen.h"

namespace quillor {

class ProgramScreen : public Screen {
  public:
    Label lblSpoken;  // never drawn: what is to be heard
    Label lblView;    // opens the menu
    MenuItem mView;

    Program& program() const { return program_; }

    /// Has a screen reader say it, also when it is what was said last.
    void speak(Text words);
    /// Opens what helps on this screen: the manual, where there is nothing else.
    virtual void openHelp();
    /// A box with the keys of this screen, and those that all have.
    void showKeys();
    /// Speaks the other language from now on, once the player has agreed to start anew.
    void changeLanguage();
    /// As the title bar's close button, but asks first where a game would be lost.
    void quit();

  protected:
    ProgramScreen(const std::string& screenName, Program& program);

    /// The button of the menu, in that ink; on a frame its place is relative to that.
    void layOutView(const Area& place, Color ink, Frame* on = nullptr);
    /// In the corner of a screen without a bar.
    void placeViewOnPaper(const Sheet& paper);
    /// Draws on a tall page, between `top` and its lower edge, what stands beside the
    /// controls on a wide one.
    void drawBelow(Picture& page, const char* drawing, Twips top) const;
    /// In the interface's language as it is now.
    void translateView();
    /// The keys that only this screen has, one a line.
    virtual TextPair ownKeys() const { return {}; }
    /// Goes back to the screen before; nothing where there is no way back.
    virtual void goBack() {}
    virtual bool mayQuit() { return true; }
    /// The shortcuts of the menu, F10 for the menu itself, and Escape.
    void onKeyUnused(KeyEvent& event) override;

    Program& program_;
    GameSettings& settings_;

  private:
    void makeEntries();
    void showEntries();
    void runEntry(const ViewEntry& entry);
    void popUpView();
    void leave();

    std::deque<MenuItem> items_;  // in the order of the table
};

/// As shown beside a caption, e.g. "Ctrl+E" or "F11"; empty for no key.
Text shortcutText(const Shortcut& shortcut);

}  // namespace quillor
