#include "platform/simulated/SimulatedNotifications.h"

#include <memory>

namespace brindlex {

void SimulatedNotificationBus::post(const std::string& name, const std::string& object)
{
    const Posted posted{name, object};
    posted_.push_back(posted);
    observers_.forEachWhile([&](const Observer& observer) {
        if (observer.wanted == posted)
            observer.handler();
        return true;
    });
}

Subscription SimulatedNotificationBus::observe(
    const std::string& name, const std::string& object, std::function<void()> handler)
{
    return observers_.add({{name, object}, std::move(handler)});
}

void SimulatedNotifications::post(const std::string& name, const std::string& object)
{
    journal_.add("post " + name + " " + object);
    bus_.post(name, object);
}

Subscription SimulatedNotifications::observe(
    const std::string& name, const std::string& object, std::function<void()> handler)
{
    // Who has unsubscribed is not notified of what was on its way.
    auto shared = std::make_shared<std::function<void()>>(std::move(handler));
    auto registration = bus_.observe(name, object, [this, weak = std::weak_ptr(shared)] {
        mainThread_.post([weak] {
            if (const auto present = weak.lock())
                (*present)();
        });
    });
    Subscription observation(
        [shared, registration = std::make_shared<Subscription>(std::move(registration))]() mutable {
            registration->reset();
            shared.reset();
        });
    return journal_.addObservation(name + " " + object, std::move(observation));
}

} // namespace brindlex
