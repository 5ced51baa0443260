// Linux and the other systems of the free desktops: their settings by way of the portal.
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <algorithm>
#include <utility>

#include "qt/system/portal_settings.h"

namespace quillor::platform {

namespace {

constexpr int kPatience = 2000;  // ms

// What is known without asking: the toolkit's own colours and font, and the theme that a
// person may have put into the environment.
Preferences ownPreferences() {
    Preferences own;
    const QPalette colors = QGuiApplication::palette();
    const QString theme = qEnvironmentVariable("GTK_THEME");
    own.dark = colors.window().color().lightness() < colors.windowText().color().lightness() ||
               theme.endsWith(":dark") || theme.endsWith("-dark");
    own.highContrast = theme.startsWith("HighContrast");
    own.textSize = textSizeOf(QGuiApplication::font().pointSizeF());
    return own;
}

}  // namespace

void readPreferences(std::function<void(const Preferences&)> told) {
    const Preferences own = ownPreferences();
    told(own);
    QDBusMessage question = QDBusMessage::createMethodCall(
        "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
        "org.freedesktop.portal.Settings", "ReadAll");
    question << QStringList{"org.freedesktop.appearance", "org.gnome.desktop.interface",
                            "org.gnome.desktop.a11y.interface", "org.kde.kdeglobals.KDE"};
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question, kPatience));
    QObject::connect(answer, &QDBusPendingCallWatcher::finished,
                     [own, told = std::move(told)](QDBusPendingCallWatcher* call) {
                         call->deleteLater();
                         const QDBusMessage reply = call->reply();
                         if (call->isError() || reply.arguments().isEmpty())
                             return;
                         PortalSettings settings;
                         reply.arguments().constFirst().value<QDBusArgument>() >> settings;
                         told(withPortal(own, settings));
                     });
}

}  // namespace quillor::platform
