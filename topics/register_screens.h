// Makes the screens of this folder known to the program.
#pragma once

#include "app/program.h"

namespace quillor {

/// Classic entry, topic selection and inventor.
void addTopicScreens(Program& program);

}  // namespace quillor
