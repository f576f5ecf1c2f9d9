#pragma once

#include "eventtap/TapClient.h"
#include "foundation/Observable.h"
#include "mouse/MouseConfig.h"
#include "mouse/ScrollSmoother.h"
#include "platform/Clock.h"
#include "platform/EventPosting.h"
#include "platform/RunningApplications.h"

namespace brindlex {

/// Takes the notches of mouse wheels from the system and gives back pixels: inverted, faster,
/// accelerated and smooth as the user has set it. Trackpads are left alone.
///
/// A start takes the wheel whatever is set; only a change that switches smoothing and both
/// inversions off ends it. All settings are read at each notch. Main thread only.
class MouseScrollManager {
public:
    /// What the manager acts with.
    struct Abilities {
        EventPosting& posting;
        const RunningApplications& applications;
        DisplayLink& displayLink;
        const Clock& clock;
    };

    MouseScrollManager(const Observable<MouseConfig>& config, const TapEnvironment& environment,
        const Abilities& abilities);

    /// Without permission it retries every 2 seconds.
    void start() { client_.subscribe(mouseScrollEventMask); }

    void tearDown() { client_.unsubscribe(); }

private:
    void reset();
    EventVerdict receive(const Event& event);
    std::optional<std::string> frontmostBundleID() const;
    void post(std::uint64_t flags, ScrollDistance distance);

    const Observable<MouseConfig>& config_;
    Abilities abilities_;
    FrameDriver driver_;
    ScrollSmoother smoother_;
    MouseScrollAccelerationCalculator accelerationCalculator_;
    TapClient client_;
    Subscription enabledObserver_;
    Subscription unusualNumbersObserver_;
};

} // namespace brindlex
