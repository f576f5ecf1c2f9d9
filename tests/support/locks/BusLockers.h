#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QVariantMap>

#include <string>

namespace brindlex {

/// The screen saver of a desktop, on a bus under its name.
class FakeScreenSaver : public QDBusVirtualObject {
public:
    FakeScreenSaver(const std::string& busAddress, const std::string& name)
        : name_(QString::fromStdString(name)),
          bus_(QDBusConnection::connectToBus(QString::fromStdString(busAddress), name_))
    {
        bus_.registerVirtualObject(path(), this);
        bus_.registerService(name_);
    }
    ~FakeScreenSaver() override { leave(); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
    {
        return message.member() == QStringLiteral("GetActive")
            && bus.send(message.createReply(isActive_));
    }

    void setActive(bool isActive)
    {
        isActive_ = isActive;
        auto signal = QDBusMessage::createSignal(path(), name_, QStringLiteral("ActiveChanged"));
        signal << isActive;
        bus_.send(signal);
    }

    /// Becomes active without a signal, as before anybody listens.
    void beActive() { isActive_ = true; }

    void leave()
    {
        bus_ = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus(name_);
    }

private:
    QString path() const
    {
        auto path = name_;
        return QLatin1Char('/') + path.replace(QLatin1Char('.'), QLatin1Char('/'));
    }

    QString name_;
    QDBusConnection bus_;
    bool isActive_ = false;
};

/// The keeper of the sessions of a computer, with one session.
class FakeLogind : public QDBusVirtualObject {
public:
    explicit FakeLogind(const std::string& busAddress)
        : bus_(QDBusConnection::connectToBus(
            QString::fromStdString(busAddress), QStringLiteral("fake-logind")))
    {
        bus_.registerVirtualObject(
            QStringLiteral("/org/freedesktop/login1"), this, QDBusConnection::SubPath);
        bus_.registerService(QStringLiteral("org.freedesktop.login1"));
    }
    ~FakeLogind() override
    {
        bus_ = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus(QStringLiteral("fake-logind"));
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
    {
        return message.member() == QStringLiteral("Get")
            && message.path() == QStringLiteral("/org/freedesktop/login1/session/auto")
            && message.arguments().value(1).toString() == QStringLiteral("LockedHint")
            && bus.send(message.createReply(QVariant::fromValue(QDBusVariant(isLocked_))));
    }

    void setLocked(bool isLocked)
    {
        isLocked_ = isLocked;
        auto signal = QDBusMessage::createSignal(
            QStringLiteral("/org/freedesktop/login1/session/_32"),
            QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"));
        signal << QStringLiteral("org.freedesktop.login1.Session")
               << QVariantMap{{QStringLiteral("LockedHint"), isLocked}} << QStringList();
        bus_.send(signal);
    }

private:
    QDBusConnection bus_;
    bool isLocked_ = false;
};

} // namespace brindlex
