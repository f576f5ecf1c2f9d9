#include "platform/linux/X11ApplicationOpening.h"

#include "platform/linux/VirtualDesktops.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QVariant>

namespace brindlex {
namespace {

constexpr int patience = 100; // ms

bool isOnBus(const QDBusConnection& bus, const QString& service)
{
    auto* const daemon = bus.interface();
    if (!daemon)
        return false;
    // An event waits for the answer.
    daemon->setTimeout(patience);
    return daemon->isServiceRegistered(service).value();
}

/// Whether a desktop with an overview was told to show it.
bool showOverview()
{
    const auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return false;
    if (const QString shell = QStringLiteral("org.gnome.Shell"); isOnBus(bus, shell)) {
        auto message = QDBusMessage::createMethodCall(shell, QStringLiteral("/org/gnome/Shell"),
            QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Set"));
        message << shell << QStringLiteral("OverviewActive")
                << QVariant::fromValue(QDBusVariant(true));
        return bus.send(message);
    }
    if (isOnBus(bus, QStringLiteral("org.kde.KWin"))) {
        auto message = QDBusMessage::createMethodCall(QStringLiteral("org.kde.kglobalaccel"),
            QStringLiteral("/component/kwin"), QStringLiteral("org.kde.kglobalaccel.Component"),
            QStringLiteral("invokeShortcut"));
        message << QStringLiteral("Overview");
        return bus.send(message);
    }
    return false;
}

} // namespace

void X11ApplicationOpening::open(const std::filesystem::path& application)
{
    if (application.filename() != "Mission Control.app")
        return;
    if (!showOverview())
        toggleShowingDesktop(connection_);
}

} // namespace brindlex
