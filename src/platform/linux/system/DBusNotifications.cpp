#include "platform/linux/system/DBusNotifications.h"

#include "log/Log.h"

#include <QObject>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace brindlex {
namespace {

const auto path = QStringLiteral("/com/brindlex/Brindlex/Notifications");
const auto interface = QStringLiteral("com.brindlex.Brindlex.Notifications");
const auto member = QStringLiteral("Posted");
const auto signature = QStringLiteral("ss");

/// The text as a match rule can hold it; null, which matches anything, where the library would
/// write it into the rule in a way that the bus refuses.
QString asMatch(const QString& text)
{
    const auto isPlain = [](QChar character) {
        return character >= QLatin1Char(' ') && character <= QLatin1Char('~')
            && character != QLatin1Char('\'') && character != QLatin1Char('\\');
    };
    return std::all_of(text.begin(), text.end(), isPlain) ? text : QString();
}

/// One observer. May be ended from inside its handler.
class Observer : public QObject {
    Q_OBJECT

public:
    Observer(QObject* parent, QString name, QString object, std::function<void()> handler)
        : QObject(parent), name_(std::move(name)), object_(std::move(object)),
          handler_(std::move(handler))
    {
    }

    /// What was on its way to the observer is dropped.
    void end()
    {
        isActive_ = false;
        deleteLater();
    }

public Q_SLOTS:
    void hear(const QString& name, const QString& object)
    {
        if (isActive_ && name == name_ && object == object_)
            handler_();
    }

private:
    const QString name_;
    const QString object_;
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
    const auto wantedName = QString::fromStdString(name);
    const auto wantedObject = QString::fromStdString(object);
    const QPointer<Observer> observer
        = new Observer(observers_.get(), wantedName, wantedObject, std::move(handler));
    bus_.connection().connect(QString(), path, interface, member,
        {asMatch(wantedName), asMatch(wantedObject)}, signature, observer.data(),
        SLOT(hear(QString, QString)));
    bus_.flush();
    return Subscription([observer] {
        if (observer)
            observer->end();
    });
}

} // namespace brindlex

#include "DBusNotifications.moc"
