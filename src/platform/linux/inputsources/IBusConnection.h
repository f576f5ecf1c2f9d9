#pragma once

#include "platform/linux/system/DBusReply.h"
#include "platform/linux/system/DBusSignal.h"

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QObject>
#include <QString>
#include <QVariant>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace brindlex {

/// A connection to the IBus daemon, over the daemon's own bus. Serves one life of the daemon.
class IBusConnection {
public:
    /// What is called at the daemon: a service of its bus, with one object and one interface.
    struct Service {
        const char* name;
        const char* path;
        const char* interface;
    };

    /// Connects; without a daemon, `problem` has the reason.
    IBusConnection();
    ~IBusConnection();
    IBusConnection(const IBusConnection&) = delete;
    IBusConnection& operator=(const IBusConnection&) = delete;

    bool isConnected() const { return bus_.isConnected(); }
    /// Why there is no connection, in the words of the system; empty while there is one.
    const std::string& problem() const { return problem_; }

    /// Calls `ready` with the reply to the greeting, once, before the deadline or from the loop.
    /// The daemon replies to nothing that reaches it before it has given the connection a name.
    void greet(DBusDeadline deadline, std::function<void(const QDBusMessage& reply)> ready);
    QDBusPendingCall call(
        const Service& service, const char* member, const QVariantList& arguments) const;
    /// Calls the handler with each such signal, for as long as the connection lives.
    void follow(const Service& service, const char* member, DBusSignal::Handler handler);
    /// Calls the handler when the daemon has ended the connection.
    void whenEnded(std::function<void()> handler);

private:
    QString name_;
    QDBusConnection bus_;
    QObject context_;
    std::vector<std::unique_ptr<DBusSignal>> signals_;
    std::string problem_;
};

} // namespace brindlex
