// The offer to look the answer up: "What is that?".
#pragma once

#include "app/program.h"

namespace quillor {

class WebSearch {
  public:
    explicit WebSearch(Program& program);

    ControlArray<Label, 0, 1> lblFinder{"lblFinder"};  // 0 the caption, 1 the face around it
    Shape shpFinder;

    void offer(bool shown);
    void eTranslate();
    /// Opens the search of the last answer: lower case, otherwise as it stands.
    void lblFinder_Click();

  private:
    Program& program_;
};

}  // namespace quillor
