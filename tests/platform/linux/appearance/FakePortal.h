#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>

#include <string>

namespace brindlex {

/// A colour as the portal sends it.
struct PortalColour {
    double red = 0;
    double green = 0;
    double blue = 0;

    friend QDBusArgument& operator<<(QDBusArgument& argument, const PortalColour& colour)
    {
        argument.beginStructure();
        argument << colour.red << colour.green << colour.blue;
        argument.endStructure();
        return argument;
    }
    friend const QDBusArgument& operator>>(const QDBusArgument& argument, PortalColour& colour)
    {
        argument.beginStructure();
        argument >> colour.red >> colour.green >> colour.blue;
        argument.endStructure();
        return argument;
    }
};

} // namespace brindlex

Q_DECLARE_METATYPE(brindlex::PortalColour)

namespace brindlex {

using PortalSettings = QMap<QString, QVariantMap>;

/// The settings portal of a desktop.
class FakePortal : public QDBusVirtualObject {
public:
    explicit FakePortal(const std::string& busAddress)
        : bus_(QDBusConnection::connectToBus(QString::fromStdString(busAddress), "portal"))
    {
        qDBusRegisterMetaType<PortalColour>();
        qDBusRegisterMetaType<PortalSettings>();
        bus_.registerVirtualObject("/org/freedesktop/portal/desktop", this);
    }
    ~FakePortal() override
    {
        bus_ = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus("portal");
    }

    void start() { bus_.registerService("org.freedesktop.portal.Desktop"); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
    {
        return message.member() == QStringLiteral("ReadAll")
            && bus.send(message.createReply(QVariant::fromValue(settings)));
    }
    void change(const QString& space, const QString& key, const QVariant& value)
    {
        auto signal = QDBusMessage::createSignal(
            "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "SettingChanged");
        signal << space << key << QVariant::fromValue(QDBusVariant(value));
        bus_.send(signal);
    }

    PortalSettings settings;

private:
    QDBusConnection bus_;
};

} // namespace brindlex
