// The game's menu: its entries, each with its key and what it does; and the offer
// to look the answer up.
#pragma once

#include <array>
#include <functional>
#include <vector>

#include "app/program.h"

namespace quillor {

class GameMenu {
  public:
    /// What the entries do. A switch is turned by its command; the menu only shows it.
    struct Commands {
        std::function<void()> mBack_Click;
        std::function<void()> mReboot_Click;
        std::function<void(int)> mDoWay_Click;     // 0 Manual, 1 Repeat, 2 Tour
        std::function<void(int)> mDoWayAll_Click;  // 0 Any topic, 1 Hidden
        std::function<void()> eEnterWord;
        std::function<void()> eChangeSound;
        std::function<void()> mHelpy_Click;
        std::function<void()> mHide_Click;
        std::function<void()> mColor_Click;
    };

    GameMenu(Program& program, const Commands& commands);

    MenuItem mMenu;
    MenuItem mBack;
    MenuItem mReboot;
    MenuItem mAuto;
    ControlArray<MenuItem, 0, 2> mDoWay{"mDoWay"};
    ControlArray<MenuItem, 0, 1> mDoWayAll{"mDoWayAll"};
    MenuItem mWrite;
    MenuItem mWave;
    MenuItem mHelpy;
    MenuItem mHide;
    MenuItem mColor;
    MenuItem mAbout;
    MenuItem mHelp;

    void eTranslate();
    /// Enables and checks the entries by the record. Repeat and Tour need a
    /// topic to start from: the first deal brings it.
    void show(bool topicDealt);
    /// Checks the entry of the way that is in the record.
    void eActivateAuto();
    /// Checks the helps, first letter and hidden letters, as the record has them.
    void eCheckOthers();
    /// Runs the entry whose shortcut the key is, if it is enabled; the first
    /// press of a held key only. Returns whether it is any entry's key.
    bool runShortcut(const KeyEvent& event) const;

  private:
    struct Entry {
        MenuItem& item;
        const TextPair& caption;
        int key;  // 0: none
        bool withControl;
        std::function<void()> action;
    };

    void nameItems();
    std::vector<Entry> entries(const Commands& commands);
    void buildTree();
    void mAbout_Click() const;

    Program& program_;
    std::array<MenuItem, 5> separators_;
    const std::vector<Entry> entries_;
};

/// "What is that?", at the end of a game.
class WebSearch {
  public:
    explicit WebSearch(Program& program);

    ControlArray<Label, 0, 1> lblFinder{"lblFinder"};  // 0 the caption, 1 the face around it
    Shape shpFinder;

    /// Shows or hides the button.
    void offer(bool shown);
    /// The button in that area of the screen, in twips.
    void arrange(const Area& area);
    void eTranslate();
    /// Opens the search of the last answer: lower case, otherwise as it stands.
    void lblFinder_Click();

  private:
    Program& program_;
};

}  // namespace quillor
