// What the settings portal of a free desktop says, as preferences.
#pragma once

#include <QMap>
#include <QString>
#include <QVariantMap>
#include <algorithm>

#include "toolkit/preferences.h"

namespace quillor::platform {

/// By group, and by key in it.
using PortalSettings = QMap<QString, QVariantMap>;

/// The usual sizes of desktops, 9 to 11 points, count as the usual one.
inline double textSizeOf(double points) {
    constexpr double kLeast = 0.8;
    constexpr double kMost = 2.5;
    const double size = points > 11 ? points / 11 : points < 9 && points > 0 ? points / 9 : 1;
    return std::clamp(size, kLeast, kMost);
}

/// The portal's word goes before what was known without it; what it does not say stays.
inline Preferences withPortal(Preferences known, const PortalSettings& settings) {
    const auto value = [&](const char* group, const char* key) {
        return settings.value(group).value(key);
    };
    constexpr auto kAppearance = "org.freedesktop.appearance";
    constexpr auto kInterface = "org.gnome.desktop.interface";
    if (const QVariant scheme = value(kAppearance, "color-scheme"); scheme.toInt() > 0)
        known.dark = scheme.toInt() == 1;
    else if (value(kInterface, "color-scheme").toString() == "prefer-dark")
        known.dark = true;
    if (value(kAppearance, "contrast").toInt() == 1 ||
        value("org.gnome.desktop.a11y.interface", "high-contrast").toBool() ||
        value(kInterface, "gtk-theme").toString().startsWith("HighContrast"))
        known.highContrast = true;
    const QVariant animated = value(kInterface, "enable-animations");
    const QVariant duration = value("org.kde.kdeglobals.KDE", "AnimationDurationFactor");
    if ((animated.isValid() && !animated.toBool()) ||
        (duration.isValid() && duration.toDouble() == 0) ||
        value(kAppearance, "reduced-motion").toInt() == 1)
        known.reducedMotion = true;
    if (const double size = value(kInterface, "text-scaling-factor").toDouble(); size > 0)
        known.textSize = std::clamp(size, 0.8, 2.5);
    return known;
}

}  // namespace quillor::platform
