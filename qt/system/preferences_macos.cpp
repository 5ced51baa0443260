// macOS.
#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <QSettings>
#include <algorithm>

#include "qt/system/platform.h"

namespace quillor::platform {

void readPreferences(std::function<void(const Preferences&)> told) {
    constexpr double kUsualSize = 13;  // points of the system's font
    Preferences wanted;
    const QPalette colors = QGuiApplication::palette();
    wanted.dark = colors.window().color().lightness() < colors.windowText().color().lightness();
    // The toolkit turns the domain round: com.apple.universalaccess.
    const QSettings access("apple.com", "universalaccess");
    wanted.highContrast = access.value("increaseContrast").toBool();
    wanted.reducedMotion = access.value("reduceMotion").toBool();
    wanted.textSize = std::clamp(QGuiApplication::font().pointSizeF() / kUsualSize, 0.8, 2.5);
    told(wanted);
}

}  // namespace quillor::platform
