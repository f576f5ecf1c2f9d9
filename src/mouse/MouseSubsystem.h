#pragma once

#include "foundation/MadeOnFirstUse.h"
#include "mouse/MouseActionDispatcher.h"
#include "mouse/MouseClickManager.h"
#include "mouse/MouseConfigStore.h"
#include "mouse/MouseGestureManager.h"
#include "mouse/MouseResizeCursorDetector.h"
#include "mouse/MouseScrollManager.h"
#include "mouse/SpaceSwitcher.h"
#include "platform/Platform.h"

namespace brindlex {

/// All of the mouse: one of each part, made on first use of the abilities of the computer and kept.
/// The platform and the tap outlive it. Main thread only.
class MouseSubsystem {
public:
    MouseSubsystem(Platform& platform, GlobalEventTap& tap) : platform_(platform), tap_(tap) { }

    MouseConfigStore& configStore();
    SpaceSwitcher& spaceSwitcher();
    MouseActionDispatcher& actionDispatcher();
    MouseResizeCursorDetector& resizeCursorDetector();
    MouseClickManager& clickManager();
    MouseGestureManager& gestureManager();
    MouseScrollManager& scrollManager();

    /// Takes over what another process has written to the preferences.
    void reload();

private:
    TapEnvironment tapEnvironment();

    Platform& platform_;
    GlobalEventTap& tap_;
    MadeOnFirstUse<MouseConfigStore> configStore_;
    MadeOnFirstUse<SpaceSwitcher> spaceSwitcher_;
    MadeOnFirstUse<MouseActionDispatcher> actionDispatcher_;
    MadeOnFirstUse<MouseResizeCursorDetector> resizeCursorDetector_;
    MadeOnFirstUse<MouseClickManager> clickManager_;
    MadeOnFirstUse<MouseGestureManager> gestureManager_;
    MadeOnFirstUse<MouseScrollManager> scrollManager_;
};

} // namespace brindlex
