#pragma once

#include "platform/linux/system/DBusSignal.h"

#include <QDBusConnection>
#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace brindlex {

/// What becomes of the icon among those that hosts draw themselves.
enum class NotifierState {
    /// Nobody has replied yet.
    unknown,
    /// Nobody draws it: there is no host, or the watcher, which keeps the list, has refused it.
    absent,
    /// A host has it in its list.
    present,
};

/// Keeps the object `/StatusNotifierItem` in the list of the desktop's `StatusNotifierWatcher`, as
/// long as this object exists.
///
/// It follows the watcher and its hosts as they come, go, crash and are replaced, without asking
/// again and again. Nothing waits: a watcher that has not replied after two seconds counts as
/// absent until it says that it has the item in its list. Main thread only.
class NotifierRegistration {
public:
    /// `name` is what the item is known by on the bus. `changed` is called from the loop with each
    /// other state; the first is `unknown`, or `absent` without a bus, and not reported.
    NotifierRegistration(
        QDBusConnection bus, const QString& name, std::function<void(NotifierState state)> changed);
    ~NotifierRegistration();
    NotifierRegistration(const NotifierRegistration&) = delete;
    NotifierRegistration& operator=(const NotifierRegistration&) = delete;

    NotifierState state() const { return state_; }

private:
    void follow();
    void registerItem();
    void noteHosts();
    void noteListed(const QDBusMessage& signal);
    void noteRegistered(const QDBusMessage& reply);
    void noteRefusal(const QDBusMessage& reply);
    void askForHost();
    void loseWatcher();
    void call(const QString& interface, const QString& member, const QVariantList& arguments,
        std::function<void(const QDBusMessage& reply)> handler);
    void setState(NotifierState state);

    QDBusConnection bus_;
    const QString name_;
    const std::function<void(NotifierState)> changed_;
    NotifierState state_ = NotifierState::unknown;
    bool isRegistered_ = false;
    bool hasLoggedRefusal_ = false;
    std::vector<std::unique_ptr<DBusSignal>> signals_;
    /// The number of the last call; the replies to those before no longer count.
    int lastCall_ = 0;
    /// For replies that come after its end.
    QObject context_;
};

} // namespace brindlex
