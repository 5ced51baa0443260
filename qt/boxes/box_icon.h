// The signs of the message boxes.
#pragma once

#include <QPixmap>

#include "core/types.h"

namespace quillor {

enum class BoxSign { Information, Question, Critical };

/// A filled circle with a white mark, for a square of `size` logical pixels: red
/// for what is critical, in the accent otherwise.
QPixmap boxIcon(BoxSign sign, const QColor& accent, int size, double density);

}  // namespace quillor
