#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

namespace brindlex {

/// Hands the signals of one kind on a bus to a handler, as long as it exists.
///
/// The sender is not looked up, which would wait for the bus: whoever sends a signal from this path
/// with this interface is heard.
class DBusSignal : public QObject {
    Q_OBJECT

public:
    using Handler = std::function<void(const QDBusMessage& signal)>;

    DBusSignal(QDBusConnection bus, const QString& path, const QString& interface,
        const QString& member, const QStringList& arguments, Handler handler);
    ~DBusSignal() override;

private Q_SLOTS:
    void receive(const QDBusMessage& signal);

private:
    QDBusConnection bus_;
    QString path_;
    QString interface_;
    QString member_;
    QStringList arguments_;
    Handler handler_;
};

} // namespace brindlex
