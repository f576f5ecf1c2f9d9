#pragma once

#include "mouse/MouseSubsystem.h"
#include "platform/simulated/SimulatedComputer.h"
#include "support/basics/RecordedLog.h"

#include <utility>

namespace brindlex {

/// A simulated computer with the mouse subsystem in it.
struct MouseSession : SimulatedComputer {
    explicit MouseSession(MouseConfig initial = {},
        SimulatedInput::TapPlace place = SimulatedInput::TapPlace::session)
        : SimulatedComputer({.tapPlace = place}), abilities(platform()),
          config(begin(std::move(initial)))
    {
    }

    /// With another input than that of the computer, such as a real one.
    MouseSession(EventTapping& tapping, EventPosting& posting, MouseConfig initial)
        : abilities(platformWithInput(tapping, posting)), config(begin(std::move(initial)))
    {
    }

    /// Changes the configuration as the settings do.
    template <typename Change>
    void edit(Change change)
    {
        auto value = config.value();
        change(value);
        subsystem.configStore().setConfig(std::move(value));
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

    RecordedLog log;
    Platform abilities;
    SimulatedEventPermissions& permissions = eventPermissions;
    GlobalEventTap tap{abilities.eventTapping, permissions, activation};
    TapEnvironment environment{tap, permissions, mainThread, activation};
    MouseSubsystem subsystem{abilities, tap};
    const Observable<MouseConfig>& config;
    MouseActionDispatcher& dispatcher = subsystem.actionDispatcher();
    MouseResizeCursorDetector& detector = subsystem.resizeCursorDetector();
    MouseClickManager& clicks = subsystem.clickManager();
    MouseGestureManager& gestures = subsystem.gestureManager();
    MouseScrollManager& scrolling = subsystem.scrollManager();

private:
    const Observable<MouseConfig>& begin(MouseConfig initial)
    {
        clock.advance(500);
        subsystem.configStore().setConfig(std::move(initial));
        return subsystem.configStore().config();
    }
};

} // namespace brindlex
