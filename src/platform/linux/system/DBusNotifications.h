#pragma once

#include "platform/DistributedNotifications.h"
#include "platform/linux/system/SessionBus.h"

#include <QObject>

#include <memory>

namespace brindlex {

/// Notifications as the signal `Posted(s name, s object)` of the interface
/// "com.brindlex.Brindlex.Notifications" on the path "/com/brindlex/Brindlex/Notifications".
///
/// The bus delivers to who has asked for that name and object, and to nobody else. A session
/// without a bus is logged once; nothing is then posted or heard.
class DBusNotifications : public DistributedNotifications {
public:
    explicit DBusNotifications(SessionBus& bus);
    ~DBusNotifications() override;

    void post(const std::string& name, const std::string& object) override;
    Subscription observe(
        const std::string& name, const std::string& object, std::function<void()> handler) override;

private:
    SessionBus& bus_;
    /// The parent of all observers.
    std::unique_ptr<QObject> observers_;
};

} // namespace brindlex
