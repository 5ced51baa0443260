// The only place that knows all of this folder's screens.
#include "topics/register_screens.h"

#include <memory>

#include "topics/classic_entry.h"
#include "topics/inventor.h"
#include "topics/topic_selection.h"

namespace quillor {

void addTopicScreens(Program& program) {
    program.addScreen(ScreenId::Word1,
                      [](Program& owner) { return std::make_unique<frmWord1>(owner); });
    program.addScreen(ScreenId::Word2,
                      [](Program& owner) { return std::make_unique<frmWord2>(owner); });
    program.addScreen(ScreenId::Inventor,
                      [](Program& owner) { return std::make_unique<frmInventor>(owner); });
}

}  // namespace quillor
