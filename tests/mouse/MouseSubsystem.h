#pragma once

#include "mouse/MouseClickManager.h"
#include "mouse/MouseGestureManager.h"
#include "mouse/MouseScrollManager.h"
#include "mouse/SpaceSwitcher.h"
#include "platform/simulated/SimulatedAccessibilityTree.h"
#include "platform/simulated/SimulatedApplicationOpening.h"
#include "platform/simulated/SimulatedApplications.h"
#include "platform/simulated/SimulatedCursor.h"
#include "platform/simulated/SimulatedDisplayLink.h"
#include "platform/simulated/SimulatedEventPermissions.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "platform/simulated/SimulatedProcessLaunching.h"
#include "platform/simulated/SimulatedProgramActivation.h"
#include "platform/simulated/SimulatedWindowList.h"
#include "support/basics/RecordedLog.h"

#include <utility>

namespace brindlex {

/// The mouse subsystem in a simulated computer, but for the input, which may be a real one.
struct MouseSubsystem {
    MouseSubsystem(EventTapping& tapping, EventPosting& posting, MouseConfig initial)
        : config(std::move(initial)), tap(tapping, permissions, activation),
          spaces(posting, displayLink, mainThread, clock),
          dispatcher(posting, opening, processes, spaces),
          gestures(config, environment, {posting, dispatcher, detector, clock}),
          scrolling(config, environment, {posting, applications, displayLink, clock})
    {
        clock.advance(500);
    }

    RecordedLog log;
    SimulatedClock clock;
    SimulatedMainThread mainThread{clock};
    SimulatedDisplayLink displayLink;
    SimulatedEventPermissions permissions;
    SimulatedProgramActivation activation;
    SimulatedApplications applications;
    SimulatedApplicationOpening opening;
    SimulatedProcessLaunching processes;
    SimulatedCursor cursor;
    SimulatedAccessibilityTree accessibility;
    SimulatedWindowList windows;

    Observable<MouseConfig> config;
    GlobalEventTap tap;
    TapEnvironment environment{tap, permissions, mainThread, activation};
    SpaceSwitcher spaces;
    MouseActionDispatcher dispatcher;
    MouseResizeCursorDetector detector{cursor, accessibility, windows};
    MouseClickManager clicks{config, environment, dispatcher};
    MouseGestureManager gestures;
    MouseScrollManager scrolling;

    /// Changes the configuration as the settings do.
    template <typename Change>
    void edit(Change change)
    {
        auto value = config.value();
        change(value);
        config.set(std::move(value));
    }

    void bindClick(MouseButton button, ModifierSet modifiers, MouseAction::Any action)
    {
        edit([&](MouseConfig& value) {
            value.click.bindings.push_back({Uuid::random(), button, modifiers, action});
        });
    }

    void bindGesture(MouseButton button, ModifierSet modifiers, MouseDirection direction,
        MouseAction::Any action)
    {
        edit([&](MouseConfig& value) {
            value.gesture.bindings.push_back(
                {Uuid::random(), button, modifiers, direction, action});
        });
    }
};

} // namespace brindlex
