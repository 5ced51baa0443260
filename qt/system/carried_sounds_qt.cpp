// Sounds among Qt's own resources, on systems whose programs have none.
#include <QResource>
#include <QString>

#include "qt/system/carried_sounds.h"

namespace quillor {

std::span<const std::byte> carriedSound(int id) {
    const QResource carried(QStringLiteral(":/sounds/%1.wav").arg(id));
    return {reinterpret_cast<const std::byte*>(carried.data()),
            static_cast<std::size_t>(carried.size())};
}

}  // namespace quillor
