#include "eventtap/GlobalEventTap.h"

#include "log/Log.h"

#include <algorithm>
#include <string>
#include <utility>

namespace brindlex {

GlobalEventTap::GlobalEventTap(
    EventTapping& tapping, EventPermissions& permissions, ProgramActivation& activation)
    : tapping_(tapping), permissions_(permissions),
      accessibilityObserver_(permissions.observeAccessibilityChanges(
          [this] { handlePermissionChange("ax-distributed"); })),
      didBecomeActiveObserver_(activation.observeDidBecomeActive(
          [this] { handlePermissionChange("did-become-active"); }))
{
}

Uuid GlobalEventTap::subscribe(
    EventMask mask, Handler handler, std::optional<EventTriggers> triggers)
{
    const auto id = Uuid::random();
    auto subscribers = *subscribers_;
    subscribers.push_back({id, {mask, std::move(triggers)}, std::move(handler)});
    replaceSubscribers(std::move(subscribers));
    rebuild();
    return id;
}

void GlobalEventTap::unsubscribe(const Uuid& id)
{
    auto subscribers = *subscribers_;
    std::erase_if(subscribers, [&](const Subscriber& subscriber) { return subscriber.id == id; });
    replaceSubscribers(std::move(subscribers));
    rebuild();
}

void GlobalEventTap::setTriggers(const Uuid& id, std::optional<EventTriggers> triggers)
{
    auto subscribers = *subscribers_;
    for (auto& subscriber : subscribers)
        if (subscriber.id == id)
            subscriber.interest.triggers = triggers;
    replaceSubscribers(std::move(subscribers));
    if (tap_)
        tap_->setInterests(interests());
}

void GlobalEventTap::replaceSubscribers(Subscribers subscribers)
{
    subscribers_ = std::make_shared<const Subscribers>(std::move(subscribers));
}

void GlobalEventTap::rebuild()
{
    tearDown();
    if (subscribers_->empty())
        return;
    EventMask mask = 0;
    for (const auto& subscriber : *subscribers_)
        mask |= subscriber.interest.mask;
    tap_ = tapping_.createTap(
        mask, interests(), [this](const Event& event) { return receive(event); });
    if (tap_)
        tap_->setEnabled(true);
    else
        Log::warn("CGEvent.tapCreate returned nil; check Accessibility and Input Monitoring "
                  "permissions",
            logCategory::mouse);
}

void GlobalEventTap::tearDown()
{
    if (tap_)
        tap_->setEnabled(false);
    tap_.reset();
}

std::vector<EventInterest> GlobalEventTap::interests() const
{
    std::vector<EventInterest> interests;
    for (const auto& subscriber : *subscribers_)
        interests.push_back(subscriber.interest);
    return interests;
}

EventVerdict GlobalEventTap::receive(const Event& event)
{
    const bool isTimeout = event.type == EventType::tapDisabledByTimeout;
    if (!isTimeout && event.type != EventType::tapDisabledByUserInput)
        return dispatch(event);
    if (tap_) {
        tap_->setEnabled(true);
        Log::warn(std::string("GlobalEventTap: re-enabled after ")
                + (isTimeout ? "tapDisabledByTimeout" : "tapDisabledByUserInput"),
            logCategory::mouse);
    }
    return EventVerdict::pass;
}

EventVerdict GlobalEventTap::dispatch(const Event& event) const
{
    const auto snapshot = subscribers_;
    const auto bit = eventMask(event.type);
    auto verdict = EventVerdict::pass;
    for (const auto& subscriber : *snapshot) {
        if ((subscriber.interest.mask & bit) == 0)
            continue;
        if (subscriber.handler(event) == EventVerdict::swallow)
            verdict = EventVerdict::swallow;
    }
    return verdict;
}

void GlobalEventTap::handlePermissionChange(std::string_view reason)
{
    const bool isGranted = EventPermissionState::ask(permissions_).isGranted();
    if (tap_ && !isGranted) {
        Log::warn("GlobalEventTap: tearing down, permission lost (" + std::string(reason) + ")",
            logCategory::mouse);
        tearDown();
    } else if (!tap_ && isGranted && !subscribers_->empty()) {
        Log::info("GlobalEventTap: rebuilding, permission regained (" + std::string(reason) + ")",
            logCategory::mouse);
        rebuild();
    }
}

} // namespace brindlex
