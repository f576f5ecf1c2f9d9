#pragma once

#include "mouse/MouseAction.h"
#include "platform/ApplicationOpening.h"
#include "platform/EventPosting.h"
#include "platform/ProcessLaunching.h"
#include "platform/SessionLock.h"

namespace brindlex {

class SpaceSwitcher;

/// Performs what bindings ask for: the one place where a gesture or a click reaches the world
/// outside. Never waits, so that it may be called while an event does. Failures are not reported to
/// the caller. At a locked session nothing is done, and the log says so. Main thread only.
class MouseActionDispatcher {
public:
    MouseActionDispatcher(EventPosting& posting, ApplicationOpening& applications,
        ProcessLaunching& processes, SpaceSwitcher& spaces, SessionLock& lock);

    void perform(const MouseAction::Any& action);

private:
    EventPosting& posting_;
    ApplicationOpening& applications_;
    ProcessLaunching& processes_;
    SpaceSwitcher& spaces_;
    SessionLock& lock_;
};

} // namespace brindlex
