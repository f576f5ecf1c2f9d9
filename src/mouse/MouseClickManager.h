#pragma once

#include "eventtap/TapClient.h"
#include "foundation/Observable.h"
#include "mouse/MouseActionDispatcher.h"
#include "mouse/MouseClick.h"
#include "mouse/MouseConfig.h"

namespace brindlex {

/// Turns presses of the middle and the side buttons into actions, in all applications.
///
/// A start takes the buttons whatever the setting says; only a change of the setting ends it. The
/// bindings are read at each event. Main thread only.
class MouseClickManager {
public:
    MouseClickManager(const Observable<MouseConfig>& config, const TapEnvironment& environment,
        MouseActionDispatcher& dispatcher);

    /// Without permission it retries every 2 seconds.
    void start() { client_.subscribe(mouseClickEventMask); }

    void tearDown() { client_.unsubscribe(); }

private:
    EventVerdict receive(const Event& event);

    const Observable<MouseConfig>& config_;
    MouseActionDispatcher& dispatcher_;
    TapClient client_;
    MouseClickState state_;
    Subscription enabledObserver_;
};

} // namespace brindlex
