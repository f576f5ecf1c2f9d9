#include "platform/linux/DBusNotifications.h"

#include "app/Log.h"

#include <QObject>
#include <QPointer>

#include <utility>

namespace brindlex {
namespace {

const auto path = QStringLiteral("/com/brindlex/Brindlex/Notifications");
const auto interface = QStringLiteral("com.brindlex.Brindlex.Notifications");
const auto member = QStringLiteral("Posted");
const auto signature = QStringLiteral("ss");

/// One observer. May be ended from inside its handler.
class Observer : public QObject {
    Q_OBJECT

public:
    Observer(QObject* parent, std::function<void()> handler)
        : QObject(parent), handler_(std::move(handler))
    {
    }

    /// What was on its way to the observer is dropped.
    void end()
    {
        isActive_ = false;
        deleteLater();
    }

public Q_SLOTS:
    void hear()
    {
        if (isActive_)
            handler_();
    }

private:
    std::function<void()> handler_;
    bool isActive_ = true;
};

} // namespace

DBusNotifications::DBusNotifications(SessionBus& bus)
    : bus_(bus), observers_(std::make_unique<QObject>())
{
    if (!bus_.isConnected())
        Log::warn("No session bus: notifications of other processes are not heard",
            logCategory::lifecycle);
}

DBusNotifications::~DBusNotifications() = default;

void DBusNotifications::post(const std::string& name, const std::string& object)
{
    auto signal = QDBusMessage::createSignal(path, interface, member);
    signal << QString::fromStdString(name) << QString::fromStdString(object);
    bus_.connection().send(signal);
    bus_.flush();
}

Subscription DBusNotifications::observe(
    const std::string& name, const std::string& object, std::function<void()> handler)
{
    const QStringList wanted{QString::fromStdString(name), QString::fromStdString(object)};
    const QPointer<Observer> observer = new Observer(observers_.get(), std::move(handler));
    bus_.connection().connect(
        QString(), path, interface, member, wanted, signature, observer.data(), SLOT(hear()));
    bus_.flush();
    return Subscription([observer] {
        if (observer)
            observer->end();
    });
}

} // namespace brindlex

#include "DBusNotifications.moc"
