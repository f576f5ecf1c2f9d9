#include "mouse/MouseSubsystem.h"

namespace brindlex {

MouseConfigStore& MouseSubsystem::configStore() { return configStore_.get(platform_.defaults); }

SpaceSwitcher& MouseSubsystem::spaceSwitcher()
{
    return spaceSwitcher_.get(
        platform_.eventPosting, platform_.displayLink, platform_.mainThread, platform_.clock);
}

MouseActionDispatcher& MouseSubsystem::actionDispatcher()
{
    return actionDispatcher_.get(platform_.eventPosting, platform_.opening, platform_.processes,
        spaceSwitcher(), platform_.sessionLock);
}

MouseResizeCursorDetector& MouseSubsystem::resizeCursorDetector()
{
    return resizeCursorDetector_.get(
        platform_.cursor, platform_.accessibility, platform_.windows, platform_.displayScale);
}

MouseClickManager& MouseSubsystem::clickManager()
{
    return clickManager_.get(configStore().config(), tapEnvironment(), actionDispatcher());
}

MouseGestureManager& MouseSubsystem::gestureManager()
{
    return gestureManager_.get(configStore().config(), tapEnvironment(),
        MouseGestureManager::Abilities{
            .posting = platform_.eventPosting,
            .dispatcher = actionDispatcher(),
            .resizeDetector = resizeCursorDetector(),
            .clock = platform_.clock,
            .scale = platform_.displayScale,
        });
}

MouseScrollManager& MouseSubsystem::scrollManager()
{
    return scrollManager_.get(configStore().config(), tapEnvironment(),
        MouseScrollManager::Abilities{
            .posting = platform_.eventPosting,
            .applications = platform_.applications,
            .displayLink = platform_.displayLink,
            .clock = platform_.clock,
        });
}

void MouseSubsystem::reload()
{
    if (auto* store = configStore_.ifMade())
        store->reload();
}

TapEnvironment MouseSubsystem::tapEnvironment()
{
    return {
        .tap = tap_,
        .permissions = platform_.eventPermissions,
        .mainThread = platform_.mainThread,
        .activation = platform_.activation,
    };
}

} // namespace brindlex
