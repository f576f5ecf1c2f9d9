#include "platform/linux/panels/X11ApplicationOpening.h"

#include "log/Log.h"
#include "platform/linux/bus/BusReachability.h"
#include "platform/linux/bus/SessionBusAddress.h"
#include "platform/linux/panels/WindowChoice.h"
#include "platform/linux/panels/X11OpenWindows.h"
#include "platform/linux/windows/X11WindowActivation.h"
#include "platform/linux/windows/X11WindowReading.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QVariant>

#include <chrono>

namespace brindlex {
namespace {

constexpr int patience = 100; // ms

bool isOnBus(const QDBusConnection& bus, const QString& service)
{
    auto* const daemon = bus.interface();
    if (!daemon)
        return false;
    // An event waits for the reply.
    daemon->setTimeout(patience);
    return daemon->isServiceRegistered(service).value();
}

/// Whether a desktop with an overview was asked to show it.
bool showOverview()
{
    if (!isBusReplying(sessionBusAddress(), std::chrono::milliseconds(patience)))
        return false;
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

X11ApplicationOpening::X11ApplicationOpening(X11Connection& connection,
    X11ActiveWindow& activeWindow, const X11RunningApplications& applications)
    : connection_(connection), applications_(applications),
      chooser_(connection, [this](std::uint32_t window) { activateWindow(connection_, window); })
{
    recent_.note(activeWindow.window());
    windowChanges_
        = activeWindow.observe([this, &activeWindow] { recent_.note(activeWindow.window()); });
}

void X11ApplicationOpening::open(const std::filesystem::path& application)
{
    if (application.filename() != "Mission Control.app" || showOverview())
        return;
    QMetaObject::invokeMethod(
        &later_, [this] { toggleWindows(); }, Qt::QueuedConnection);
}

void X11ApplicationOpening::toggleWindows()
{
    if (chooser_.isShown())
        return chooser_.close();
    const auto active = activeWindow(connection_);
    recent_.note(active);
    const auto windows = openWindows(connection_, applications_, recent_);
    if (windows.empty())
        return Log::info("Mission Control: no window is open", logCategory::mouse);
    const bool worksInFirst = windows.front().window == active;
    chooser_.show(windows, rowToBeginWith(windows.size(), worksInFirst));
}

} // namespace brindlex
