#include "eventtap/UnlockedEventTapping.h"

#include <utility>

namespace brindlex {
namespace {

/// What somebody at the computer begins something with. The rest follows it, many times a second.
bool isBeginning(EventType type)
{
    return isMouseDown(type) || type == EventType::keyDown || type == EventType::flagsChanged
        || type == EventType::scrollWheel;
}

bool isAboutTheTap(EventType type)
{
    return type == EventType::tapDisabledByTimeout || type == EventType::tapDisabledByUserInput;
}

} // namespace

std::unique_ptr<EventTap> UnlockedEventTapping::createTap(
    EventMask mask, std::vector<EventInterest> interests, Handler handler)
{
    return tapping_.createTap(
        mask, std::move(interests), [this, handler = std::move(handler)](const Event& event) {
            return isForTheLocker(event) ? EventVerdict::pass : handler(event);
        });
}

bool UnlockedEventTapping::isForTheLocker(const Event& event)
{
    if (isAboutTheTap(event.type))
        return false;
    if (isBeginning(event.type))
        isLocked_ = lock_.isLocked();
    return isLocked_;
}

} // namespace brindlex
