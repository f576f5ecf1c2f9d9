#pragma once

#include "foundation/Subscribers.h"
#include "platform/DistributedNotifications.h"
#include "platform/MainThread.h"
#include "platform/simulated/SimulatedJournal.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace brindlex {

/// What carries notifications between the processes of a simulated computer.
class SimulatedNotificationBus {
public:
    using Posted = std::pair<std::string, std::string>;

    void post(const std::string& name, const std::string& object);
    Subscription observe(
        const std::string& name, const std::string& object, std::function<void()> handler);

    /// Every name and object so far, in order, heard or not.
    const std::vector<Posted>& posted() const { return posted_; }

private:
    struct Observer {
        Posted wanted;
        std::function<void()> handler;
    };
    Subscribers<Observer> observers_;
    std::vector<Posted> posted_;
};

/// The notifications of one simulated process.
class SimulatedNotifications : public DistributedNotifications {
public:
    SimulatedNotifications(SimulatedNotificationBus& bus, MainThread& mainThread,
        SimulatedJournal::Writer journal = {})
        : bus_(bus), mainThread_(mainThread), journal_(journal)
    {
    }

    void post(const std::string& name, const std::string& object) override;
    Subscription observe(
        const std::string& name, const std::string& object, std::function<void()> handler) override;

private:
    SimulatedNotificationBus& bus_;
    MainThread& mainThread_;
    SimulatedJournal::Writer journal_;
};

} // namespace brindlex
