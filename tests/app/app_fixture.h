// The start screen and the menu, with stand-ins for the screens they lead to.
#pragma once

#include <gtest/gtest.h>

#include "app/menu_screen.h"
#include "app/start_screen.h"
#include "core/text_codec.h"
#include "tests/support/open_program.h"

namespace quillor::testing {

/// Stands where a mode's screen would, and remembers the paper it was given.
class OtherScreen : public Screen {
  public:
    using Screen::Screen;
    void takePaper(const ImageRef& given) override { paper = given; }
    ImageRef paper;

  protected:
    void onLoad() override {}
    void onCloseRequest() override {}
};

class AppTest : public ::testing::Test, public OpenProgram {
  protected:
    AppTest() {
        for (const auto& [id, name] :
             {std::pair{ScreenId::Game, "frmGame"}, std::pair{ScreenId::Settings, "frmOptions"},
              std::pair{ScreenId::Inventor, "frmInventor"}})
            program.addScreen(
                id, [name = name](Program&) { return std::make_unique<OtherScreen>(name); });
    }

    frmStart& start() { return dynamic_cast<frmStart&>(show(ScreenId::Start)); }
    frmMenu& menu() { return dynamic_cast<frmMenu&>(show(ScreenId::Menu)); }
    static constexpr const char* kJpeg = "\xFF\xD8\xFF\xE0 and so on";
    /// Enough for the progress line to grow full and for one tick more.
    static constexpr int kWholeLine = 34 * 20;
};

}  // namespace quillor::testing
