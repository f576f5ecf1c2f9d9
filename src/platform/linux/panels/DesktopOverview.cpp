#include "platform/linux/panels/DesktopOverview.h"

#include "platform/linux/bus/BusReachability.h"
#include "platform/linux/bus/SessionBusAddress.h"

#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QTimer>
#include <QVariant>

#include <chrono>
#include <utility>

namespace brindlex {
namespace {

constexpr int patience = 100; // ms
/// For a shell that is busy; an event does not wait for it.
constexpr int patienceOfNobody = 1000; // ms
/// An overview that comes has begun by then.
constexpr int timeToAppear = 300; // ms

QString shell() { return QStringLiteral("org.gnome.Shell"); }
QString kwin() { return QStringLiteral("org.kde.KWin"); }
QString kwinEffects() { return QStringLiteral("org.kde.kwin.Effects"); }

bool isOnBus(const QDBusConnection& bus, const QString& service)
{
    auto* const daemon = bus.interface();
    if (!daemon)
        return false;
    // An event waits for the reply.
    daemon->setTimeout(patience);
    return daemon->isServiceRegistered(service).value();
}

} // namespace

bool DesktopOverview::request(Refused refused)
{
    if (!isBusReplying(sessionBusAddress(), std::chrono::milliseconds(patience)))
        return false;
    bus_ = QDBusConnection::sessionBus();
    if (!bus_.isConnected())
        return false;
    if (isOnBus(bus_, shell()))
        requestOfShell(refused);
    else if (isOnBus(bus_, kwin()))
        requestOfKWin(refused);
    else
        return false;
    return true;
}

void DesktopOverview::requestOfShell(const Refused& refused)
{
    auto setting = QDBusMessage::createMethodCall(shell(), QStringLiteral("/org/gnome/Shell"),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Set"));
    setting << shell() << QStringLiteral("OverviewActive")
            << QVariant::fromValue(QDBusVariant(true));
    ask(setting, refused, [](const QDBusMessage&) {});
}

void DesktopOverview::requestOfKWin(const Refused& refused)
{
    // The shortcut is there, and pressing it no failure, also where the effect is not.
    auto loaded = QDBusMessage::createMethodCall(
        kwin(), QStringLiteral("/Effects"), kwinEffects(), QStringLiteral("isEffectLoaded"));
    loaded << QStringLiteral("overview");
    ask(loaded, refused, [this, refused](const QDBusMessage& reply) {
        if (!reply.arguments().value(0).toBool())
            return refused("KWin has not loaded the effect");
        askWhetherKWinShowsIt(
            refused, [this, refused](bool wasShown) { pressShortcutOfKWin(refused, wasShown); });
    });
}

void DesktopOverview::pressShortcutOfKWin(const Refused& refused, bool wasShown)
{
    auto shortcut = QDBusMessage::createMethodCall(QStringLiteral("org.kde.kglobalaccel"),
        QStringLiteral("/component/kwin"), QStringLiteral("org.kde.kglobalaccel.Component"),
        QStringLiteral("invokeShortcut"));
    shortcut << QStringLiteral("Overview");
    ask(shortcut, refused, [this, refused, wasShown](const QDBusMessage&) {
        if (wasShown)
            return;
        // An effect that is loaded may be unable to run.
        QTimer::singleShot(timeToAppear, &context_, [this, refused] {
            askWhetherKWinShowsIt(refused, [refused](bool isShown) {
                if (!isShown)
                    refused("KWin does not start the effect");
            });
        });
    });
}

void DesktopOverview::askWhetherKWinShowsIt(
    const Refused& refused, std::function<void(bool isShown)> reply)
{
    auto active = QDBusMessage::createMethodCall(kwin(), QStringLiteral("/Effects"),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    active << kwinEffects() << QStringLiteral("activeEffects");
    ask(active, refused, [reply = std::move(reply)](const QDBusMessage& message) {
        const auto effects = message.arguments().value(0).value<QDBusVariant>().variant();
        reply(effects.toStringList().contains(QStringLiteral("overview")));
    });
}

void DesktopOverview::ask(const QDBusMessage& question, const Refused& refused, Reply reply)
{
    auto* watcher
        = new QDBusPendingCallWatcher(bus_.asyncCall(question, patienceOfNobody), &context_);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &context_,
        [refused, reply = std::move(reply)](QDBusPendingCallWatcher* finished) {
            const auto message = finished->reply();
            finished->deleteLater();
            if (message.type() == QDBusMessage::ReplyMessage)
                reply(message);
            else
                refused(message.errorMessage().toStdString());
        });
}

} // namespace brindlex
