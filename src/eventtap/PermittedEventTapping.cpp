#include "eventtap/PermittedEventTapping.h"

#include <utility>

namespace brindlex {

std::unique_ptr<EventTap> PermittedEventTapping::createTap(
    EventMask mask, std::vector<EventInterest> interests, Handler handler)
{
    if (!EventPermissionState::ask(permissions_).isGranted())
        return nullptr;
    return tapping_.createTap(mask, std::move(interests), std::move(handler));
}

} // namespace brindlex
