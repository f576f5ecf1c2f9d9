#include "eventtap/TapClient.h"

#include "log/Log.h"

#include <string>
#include <utility>

namespace brindlex {

TapClient::TapClient(
    const TapEnvironment& environment, Manager manager, Stream<EventTriggers> triggers)
    : tap_(environment.tap), permissions_(environment.permissions), manager_(std::move(manager)),
      permissionRecovery_(environment.mainThread, environment.activation)
{
    triggersObserver_ = triggers.withoutRepeats().subscribe(
        [this](const EventTriggers& value) { setTriggers(value); });
}

void TapClient::subscribe(EventMask mask)
{
    if (token_ && currentEventMask_ == mask)
        return;
    if (!hasPermission()) {
        unsubscribe();
        permissionRecovery_.schedule(manager_.start);
        return;
    }
    if (token_)
        manager_.reset();
    permissionRecovery_.cancel();
    dropToken();
    currentEventMask_ = mask;
    token_ = tap_.subscribe(
        mask,
        [this, alive = lifetime_.watch()](const Event& event) {
            return alive.expired() ? EventVerdict::pass : manager_.receive(event);
        },
        triggers_);
}

void TapClient::unsubscribe()
{
    permissionRecovery_.cancel();
    dropToken();
    currentEventMask_ = 0;
    manager_.reset();
}

bool TapClient::hasPermission()
{
    const bool isGranted = EventPermissionState::ask(permissions_).isGranted();
    if (!isGranted)
        Log::warn(std::string(manager_.name)
                + ": missing Accessibility or Input Monitoring permission; not starting",
            logCategory::mouse);
    return isGranted;
}

void TapClient::setTriggers(const EventTriggers& triggers)
{
    triggers_ = triggers;
    if (token_)
        tap_.setTriggers(*token_, triggers);
}

void TapClient::dropToken()
{
    if (const auto token = std::exchange(token_, std::nullopt))
        tap_.unsubscribe(*token);
}

} // namespace brindlex
