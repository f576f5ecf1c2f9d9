#pragma once

#include "foundation/Subscription.h"
#include "foundation/Uuid.h"
#include "platform/EventPermissions.h"
#include "platform/EventTap.h"
#include "platform/ProgramActivation.h"

#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace brindlex {

/// The one tap of the process, shared by all who want events of the whole system.
///
/// Every subscriber sees every event of its mask, in the order of subscribing, also one that
/// another has swallowed; one that swallows is enough for the event to go no further. Subscriptions
/// survive the loss of permission: the tap goes, and comes back with it. Handlers run while the
/// event waits and must not block; they may subscribe and unsubscribe, which counts from the next
/// event on. Main thread only.
class GlobalEventTap {
public:
    using Handler = std::function<EventVerdict(const Event& event)>;

    GlobalEventTap(
        EventTapping& tapping, EventPermissions& permissions, ProgramActivation& activation);
    GlobalEventTap(const GlobalEventTap&) = delete;
    GlobalEventTap& operator=(const GlobalEventTap&) = delete;

    /// Adds a subscriber behind all others. `triggers` are the events on which it acts, where these
    /// are not all of its mask; see there for what it guarantees.
    Uuid subscribe(
        EventMask mask, Handler handler, std::optional<EventTriggers> triggers = std::nullopt);

    /// Removes the subscriber; an identifier that is not known changes nothing.
    void unsubscribe(const Uuid& id);

    /// Replaces the triggers of a subscriber, which keeps its place; the tap stays as it is.
    void setTriggers(const Uuid& id, std::optional<EventTriggers> triggers);

    /// Whether there is a tap now.
    bool isLive() const { return tap_ != nullptr; }

private:
    struct Subscriber {
        Uuid id{};
        EventInterest interest{};
        Handler handler{};
    };
    using Subscribers = std::vector<Subscriber>;

    void replaceSubscribers(Subscribers subscribers);
    void rebuild();
    void tearDown();
    std::vector<EventInterest> interests() const;
    EventVerdict receive(const Event& event);
    EventVerdict dispatch(const Event& event) const;
    void handlePermissionChange(std::string_view reason);

    EventTapping& tapping_;
    EventPermissions& permissions_;
    /// Replaced, never changed, so that a walk over it needs no copy.
    std::shared_ptr<const Subscribers> subscribers_ = std::make_shared<Subscribers>();
    std::unique_ptr<EventTap> tap_;
    Subscription accessibilityObserver_;
    Subscription didBecomeActiveObserver_;
};

} // namespace brindlex
