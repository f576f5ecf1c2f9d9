#include "platform/linux/system/DBusSessionLock.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QVariant>

#include <array>
#include <functional>
#include <utility>

namespace brindlex {
namespace {

/// The screen savers, by the name that is that of their interface too. KDE has the first.
struct Saver {
    const char* service;
    const char* path;
};
constexpr std::array savers{
    Saver{"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver"},
    Saver{"org.gnome.ScreenSaver", "/org/gnome/ScreenSaver"},
    Saver{"org.cinnamon.ScreenSaver", "/org/cinnamon/ScreenSaver"},
    Saver{"org.mate.ScreenSaver", "/org/mate/ScreenSaver"},
};

QString properties() { return QStringLiteral("org.freedesktop.DBus.Properties"); }
QString logindSession() { return QStringLiteral("org.freedesktop.login1.Session"); }

/// Hands over the first value of the reply, unless there is none or an error.
void ask(QDBusConnection& bus, QDBusMessage question, QObject& context,
    std::function<void(const QVariant&)> handler)
{
    question.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), &context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &context,
        [handler = std::move(handler)](QDBusPendingCallWatcher* finished) {
            const auto reply = finished->reply();
            finished->deleteLater();
            if (reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty())
                handler(reply.arguments().constFirst());
        });
}

} // namespace

DBusSessionLock::DBusSessionLock(QDBusConnection session, QDBusConnection system)
    : session_(std::move(session)), system_(std::move(system))
{
    for (const auto& saver : savers)
        followSaver(QString::fromLatin1(saver.service), QString::fromLatin1(saver.path));
    // The change may be of another session: what ours says is asked for.
    signals_.push_back(std::make_unique<DBusSignal>(system_, QString(), properties(),
        QStringLiteral("PropertiesChanged"), QStringList{logindSession()},
        [this](const QDBusMessage&) { askHint(); }));
    askHint();
}

void DBusSessionLock::followSaver(const QString& service, const QString& path)
{
    signals_.push_back(
        std::make_unique<DBusSignal>(session_, QString(), service, QStringLiteral("ActiveChanged"),
            QStringList(), [this, service](const QDBusMessage& signal) {
                setActive(service, signal.arguments().value(0).toBool());
            }));
    signals_.push_back(
        std::make_unique<DBusSignal>(session_, QStringLiteral("/org/freedesktop/DBus"),
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameOwnerChanged"),
            QStringList{service}, [this, service, path](const QDBusMessage&) {
                setActive(service, false);
                askSaver(service, path);
            }));
    askSaver(service, path);
}

void DBusSessionLock::askSaver(const QString& service, const QString& path)
{
    ask(session_,
        QDBusMessage::createMethodCall(service, path, service, QStringLiteral("GetActive")),
        context_,
        [this, service](const QVariant& isActive) { setActive(service, isActive.toBool()); });
}

void DBusSessionLock::setActive(const QString& saver, bool isActive)
{
    if (isActive)
        activeSavers_.insert(saver);
    else
        activeSavers_.erase(saver);
}

void DBusSessionLock::askHint()
{
    // "auto" is the session of the process, or else the one that its user sees.
    auto question = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.login1"),
        QStringLiteral("/org/freedesktop/login1/session/auto"), properties(),
        QStringLiteral("Get"));
    question << logindSession() << QStringLiteral("LockedHint");
    ask(system_, question, context_, [this](const QVariant& value) {
        isHinted_ = value.value<QDBusVariant>().variant().toBool();
    });
}

} // namespace brindlex
