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
#include "platform/simulated/SimulatedInput.h"
#include "platform/simulated/SimulatedKeyboard.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "platform/simulated/SimulatedMouse.h"
#include "platform/simulated/SimulatedProcessLaunching.h"
#include "platform/simulated/SimulatedProgramActivation.h"
#include "platform/simulated/SimulatedWindowList.h"
#include "support/RecordedLog.h"

#include <utility>

namespace brindlex {

/// A simulated session with the mouse subsystem in it.
struct MouseSession {
    explicit MouseSession(MouseConfig initial = {},
        SimulatedInput::TapPlace place = SimulatedInput::TapPlace::session)
        : input(place), config(std::move(initial))
    {
        clock.advance(500);
    }

    RecordedLog log;
    SimulatedClock clock;
    SimulatedMainThread mainThread{clock};
    SimulatedDisplayLink displayLink;
    SimulatedInput input;
    SimulatedMouse mouse{input};
    SimulatedKeyboard keyboard{input};
    SimulatedEventPermissions permissions;
    SimulatedProgramActivation activation;
    SimulatedApplications applications;
    SimulatedApplicationOpening opening;
    SimulatedProcessLaunching processes;
    SimulatedCursor cursor;
    SimulatedAccessibilityTree accessibility;
    SimulatedWindowList windows;

    Observable<MouseConfig> config;
    GlobalEventTap tap{input, permissions, activation};
    TapEnvironment environment{tap, permissions, mainThread, activation};
    SpaceSwitcher spaces{input, displayLink, mainThread, clock};
    MouseActionDispatcher dispatcher{input, opening, processes, spaces};
    MouseResizeCursorDetector detector{cursor, accessibility, windows};
    MouseClickManager clicks{config, environment, dispatcher};
    MouseGestureManager gestures{config, environment, {input, dispatcher, detector, clock}};
    MouseScrollManager scrolling{config, environment, {input, applications, displayLink, clock}};

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
