// What the screens have in common that stand over another one and choose something for it:
// the panel they are on, and the accept button.
#pragma once

#include <functional>

#include "app/program_screen.h"
#include "toolkit/style.h"

namespace quillor {

class EntryScreen : public ProgramScreen {
  public:
    Picture imgBack;
    Shape shpFond;
    Shape shpOk;
    ControlArray<Label, 0, 1> lblOk{"lblOk"};  // 0 the face, 1 the caption

    void takePaper(const ImageRef& paper) override { imgBack.image = paper; }

  protected:
    EntryScreen(const std::string& screenName, Program& program);

    static constexpr Twips kWidth = 7200;
    static constexpr Twips kEdge = 480;  // from the screen's edge to what stands on the panel
    static constexpr Twips kInner = kWidth - 2 * kEdge;
    static constexpr Color kPale = style::kPale;

    /// Of those that show a list.
    static constexpr std::array kListSheets{Sheet{Layout::Wide, kWidth, 6720},
                                            Sheet{Layout::Tall, kWidth, 9000}};

    void layOutPanel();
    void layOutAccept();
    void layOutView();
    void arrangePanel(const Sheet& paper);
    /// Along the panel's lower edge, with the further menu below.
    void arrangeAccept();
    /// How much larger what is read and pressed is than on a wide sheet.
    static float largerOn(const Sheet& paper) { return paper.layout == Layout::Wide ? 1 : 1.3F; }
    /// Either part of the button runs the handler and shows the press.
    void connectAccept(const std::function<void()>& handler);
    void enableAccept(bool now) { lblOk(0).enabled = lblOk(1).enabled = shpOk.enabled = now; }
    void translateAccept();

    /// Panel and button in the colours of the game.
    void colour();
    /// Escape closes the screen, whatever has the focus.
    void onKeyDown(KeyEvent& event) override;
    void onCloseRequest() override { program_.close(*this); }
};

}  // namespace quillor
