// The program's plain values as Qt's, and back.
#pragma once

#include <QColor>
#include <QString>

#include "core/types.h"

namespace quillor {

inline QString toQt(TextView text) {
    return QString(reinterpret_cast<const QChar*>(text.data()),
                   static_cast<qsizetype>(text.size()));
}
inline Text fromQt(const QString& text) {
    return text.toStdU16String();
}

inline QColor toQt(Color color) {
    return QColor(redOf(color), greenOf(color), blueOf(color));
}

}  // namespace quillor
