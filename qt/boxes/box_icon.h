// The signs of the message boxes.
#pragma once

#include <QColor>
#include <QMessageBox>
#include <QPixmap>

namespace quillor {

/// The sign of a message box, a filled circle with a white mark, for a square of
/// `size` logical pixels. Null for QMessageBox::NoIcon.
QPixmap boxIcon(QMessageBox::Icon icon, const QColor& accent, int size, double density);

}  // namespace quillor
