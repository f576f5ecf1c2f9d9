#include "mouse/TapClient.h"

#include "app/Log.h"

#include <string>
#include <utility>

namespace brindlex {

TapClient::TapClient(const TapEnvironment& environment, std::string_view name)
    : tap_(environment.tap), permissions_(environment.permissions), name_(name),
      permissionRecovery_(environment.mainThread, environment.activation)
{
}

bool TapClient::hasPermission()
{
    const bool isGranted = EventPermissionState::ask(permissions_).isGranted();
    if (!isGranted)
        Log::warn(std::string(name_)
                + ": missing Accessibility or Input Monitoring permission; not starting",
            logCategory::mouse);
    return isGranted;
}

void TapClient::retryLater(std::function<void()> retry)
{
    permissionRecovery_.schedule(std::move(retry));
}

void TapClient::subscribe(EventMask mask, GlobalEventTap::Handler handler, EventTriggers triggers)
{
    permissionRecovery_.cancel();
    dropToken();
    token_ = tap_.subscribe(mask, std::move(handler), std::move(triggers));
}

void TapClient::setTriggers(EventTriggers triggers)
{
    if (token_)
        tap_.setTriggers(*token_, std::move(triggers));
}

void TapClient::unsubscribe()
{
    permissionRecovery_.cancel();
    dropToken();
}

void TapClient::dropToken()
{
    if (const auto token = std::exchange(token_, std::nullopt))
        tap_.unsubscribe(*token);
}

} // namespace brindlex
