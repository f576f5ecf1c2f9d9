#include "platform/linux/tray/NotifierRegistration.h"

#include "log/Log.h"

#include <QDBusError>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

#include <utility>

namespace brindlex {
namespace {

constexpr int watcherPatience = 2000; // ms

QString busDaemon() { return QStringLiteral("org.freedesktop.DBus"); }
QString watcherName() { return QStringLiteral("org.kde.StatusNotifierWatcher"); }
QString watcherPath() { return QStringLiteral("/StatusNotifierWatcher"); }

QDBusMessage callOfDaemon(const QString& member, const QVariantList& arguments)
{
    auto call = QDBusMessage::createMethodCall(
        busDaemon(), QStringLiteral("/org/freedesktop/DBus"), busDaemon(), member);
    call.setArguments(arguments);
    return call;
}

bool isWithoutWatcher(const QDBusMessage& reply)
{
    const auto kind = QDBusError(reply).type();
    return kind == QDBusError::ServiceUnknown || kind == QDBusError::Disconnected
        || kind == QDBusError::NoReply
        || reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner");
}

} // namespace

NotifierRegistration::NotifierRegistration(
    QDBusConnection bus, const QString& name, std::function<void(NotifierState state)> changed)
    : bus_(std::move(bus)), name_(name), changed_(std::move(changed))
{
    if (!bus_.isConnected()) {
        state_ = NotifierState::absent;
        return;
    }
    follow();
    constexpr unsigned doNotQueue = 4;
    bus_.send(callOfDaemon(QStringLiteral("RequestName"), {name_, doNotQueue}));
    registerItem();
}

/// The watcher and its hosts see the name go.
NotifierRegistration::~NotifierRegistration()
{
    if (bus_.isConnected())
        bus_.send(callOfDaemon(QStringLiteral("ReleaseName"), {name_}));
}

void NotifierRegistration::follow()
{
    const auto on = [this](const QString& path, const QString& interface, const QString& member,
                        const QStringList& arguments, DBusSignal::Handler handler) {
        signals_.push_back(std::make_unique<DBusSignal>(
            bus_, path, interface, member, arguments, std::move(handler)));
    };
    on(QStringLiteral("/org/freedesktop/DBus"), busDaemon(), QStringLiteral("NameOwnerChanged"),
        {watcherName()}, [this](const QDBusMessage& signal) {
            loseWatcher();
            if (!signal.arguments().value(2).toString().isEmpty())
                registerItem();
        });
    for (const auto& change : {QStringLiteral("StatusNotifierHostRegistered"),
             QStringLiteral("StatusNotifierHostUnregistered")})
        on(watcherPath(), watcherName(), change, {}, [this](const QDBusMessage&) { noteHosts(); });
    on(watcherPath(), watcherName(), QStringLiteral("StatusNotifierItemRegistered"), {},
        [this](const QDBusMessage& signal) { noteListed(signal); });
    on(QStringLiteral("/org/freedesktop/DBus/Local"), QStringLiteral("org.freedesktop.DBus.Local"),
        QStringLiteral("Disconnected"), {}, [this](const QDBusMessage&) { loseWatcher(); });
}

void NotifierRegistration::registerItem()
{
    call(watcherName(), QStringLiteral("RegisterStatusNotifierItem"), {name_},
        [this](const QDBusMessage& reply) { noteRegistered(reply); });
}

void NotifierRegistration::noteHosts()
{
    if (isRegistered_)
        askForHost();
    else
        registerItem();
}

/// Of a watcher that was too busy to reply this is the first sign.
void NotifierRegistration::noteListed(const QDBusMessage& signal)
{
    const auto item = signal.arguments().value(0).toString();
    if (isRegistered_ || !(item.contains(name_) || item.contains(bus_.baseService())))
        return;
    isRegistered_ = true;
    askForHost();
}

void NotifierRegistration::noteRegistered(const QDBusMessage& reply)
{
    isRegistered_ = reply.type() == QDBusMessage::ReplyMessage;
    if (isRegistered_)
        return askForHost();
    noteRefusal(reply);
    setState(NotifierState::absent);
}

void NotifierRegistration::noteRefusal(const QDBusMessage& reply)
{
    if (isWithoutWatcher(reply) || std::exchange(hasLoggedRefusal_, true))
        return;
    Log::warn(
        "The tray refuses the icon: " + reply.errorMessage().toStdString(), logCategory::lifecycle);
}

void NotifierRegistration::askForHost()
{
    call(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
        {watcherName(), QStringLiteral("IsStatusNotifierHostRegistered")},
        [this](const QDBusMessage& reply) {
            const auto value = reply.arguments().value(0).value<QDBusVariant>().variant();
            setState(value.toBool() ? NotifierState::present : NotifierState::absent);
        });
}

void NotifierRegistration::loseWatcher()
{
    ++lastCall_;
    isRegistered_ = false;
    setState(NotifierState::absent);
}

/// A reply that is there already comes from the loop all the same.
void NotifierRegistration::call(const QString& interface, const QString& member,
    const QVariantList& arguments, std::function<void(const QDBusMessage& reply)> handler)
{
    auto message = QDBusMessage::createMethodCall(watcherName(), watcherPath(), interface, member);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    auto* const reply
        = new QDBusPendingCallWatcher(bus_.asyncCall(message, watcherPatience), &context_);
    QObject::connect(reply, &QDBusPendingCallWatcher::finished, &context_,
        [this, number = ++lastCall_, handler = std::move(handler)](
            QDBusPendingCallWatcher* finished) {
            finished->deleteLater();
            if (number == lastCall_)
                handler(finished->reply());
        });
}

void NotifierRegistration::setState(NotifierState state)
{
    if (std::exchange(state_, state) != state)
        changed_(state);
}

} // namespace brindlex
