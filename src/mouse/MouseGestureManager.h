#pragma once

#include "eventtap/TapClient.h"
#include "foundation/Observable.h"
#include "mouse/MouseActionDispatcher.h"
#include "mouse/MouseConfig.h"
#include "mouse/MouseGesture.h"
#include "mouse/MouseResizeCursorDetector.h"
#include "platform/Clock.h"
#include "platform/DisplayScale.h"

namespace brindlex {

/// Turns drags with a button held into actions, in all applications, and gives back as a click what
/// turned out to be none.
///
/// Bindings and threshold are read at each event, so that an edit counts from the next one on; the
/// tap is touched only when the buttons in use form other groups. Main thread only.
class MouseGestureManager {
public:
    /// What the manager acts with.
    struct Abilities {
        EventPosting& posting;
        MouseActionDispatcher& dispatcher;
        MouseResizeCursorDetector& resizeDetector;
        const Clock& clock;
        const DisplayScale& scale;
    };

    MouseGestureManager(const Observable<MouseConfig>& config, const TapEnvironment& environment,
        const Abilities& abilities);

    /// Starts with the mask of the present configuration.
    void start() { install(currentMask()); }

    /// Brings the subscription to the mask; one of 0 ends it. Without permission it retries
    /// every 2 seconds.
    void install(EventMask mask);

    void tearDown() { client_.unsubscribe(); }

private:
    EventMask currentMask() const;
    EventVerdict receive(const Event& event);
    void carryOut(const MouseGestureEffect::Any& effect);
    void replayClick(MouseButton button, Point point);

    const Observable<MouseConfig>& config_;
    Abilities abilities_;
    TapClient client_;
    MouseGestureState state_;
    std::function<MouseResizeDragDecision(Point)> decide_;
    Subscription enabledObserver_;
};

} // namespace brindlex
