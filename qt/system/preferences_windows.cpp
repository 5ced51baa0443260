// Windows.
#include <windows.h>
// The others build on it.
#include <QSettings>
#include <algorithm>

#include "qt/system/platform.h"

namespace quillor::platform {

void readPreferences(std::function<void(const Preferences&)> told) {
    Preferences wanted;
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    if (SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0))
        wanted.highContrast = (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
    BOOL animated = TRUE;
    if (SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &animated, 0))
        wanted.reducedMotion = !animated;
    const QSettings themes(
        "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
        QSettings::NativeFormat);
    wanted.dark = themes.value("AppsUseLightTheme", 1).toInt() == 0;
    if (wanted.highContrast) {
        const COLORREF window = GetSysColor(COLOR_WINDOW);
        wanted.dark = GetRValue(window) + GetGValue(window) + GetBValue(window) < 3 * 128;
    }
    const QSettings access("HKEY_CURRENT_USER\\Software\\Microsoft\\Accessibility",
                           QSettings::NativeFormat);
    const double percent = access.value("TextScaleFactor", 100).toDouble();
    wanted.textSize = std::clamp(percent / 100, 0.8, 2.5);
    told(wanted);
}

}  // namespace quillor::platform
