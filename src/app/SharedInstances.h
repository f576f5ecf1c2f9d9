#pragma once

#include "app/OverlayHUDController.h"
#include "app/Preferences.h"
#include "eventtap/GlobalEventTap.h"
#include "inputmethod/InputMethodConfigStore.h"
#include "inputmethod/InputMethodSwitchCoordinator.h"
#include "inputmethod/SmartInputMethodConfigStore.h"
#include "mouse/MouseActionDispatcher.h"
#include "mouse/MouseClickManager.h"
#include "mouse/MouseConfigStore.h"
#include "mouse/MouseGestureManager.h"
#include "mouse/MouseResizeCursorDetector.h"
#include "mouse/MouseScrollManager.h"
#include "mouse/SpaceSwitcher.h"
#include "platform/Platform.h"

#include <memory>

namespace brindlex {

/// The one of each manager and store. Each is made on first use and kept to the end of the process.
/// What another process writes to the preferences reaches the stores. Main thread only.
class SharedInstances {
public:
    explicit SharedInstances(Platform& platform);

    Preferences& preferences() { return preferences_; }
    InputMethodConfigStore& inputMethodConfigStore();
    SmartInputMethodConfigStore& smartInputMethodConfigStore();
    OverlayHUDController& overlayHUDController();
    InputMethodSwitchCoordinator& inputMethodSwitchCoordinator();
    MouseConfigStore& mouseConfigStore();
    GlobalEventTap& globalEventTap();
    SpaceSwitcher& spaceSwitcher();
    MouseActionDispatcher& mouseActionDispatcher();
    MouseResizeCursorDetector& mouseResizeCursorDetector();
    MouseClickManager& mouseClickManager();
    MouseGestureManager& mouseGestureManager();
    MouseScrollManager& mouseScrollManager();

private:
    void reloadStores();
    TapEnvironment tapEnvironment();

    Platform& platform_;
    Preferences preferences_;
    std::unique_ptr<InputMethodConfigStore> inputMethodConfigStore_;
    std::unique_ptr<SmartInputMethodConfigStore> smartInputMethodConfigStore_;
    std::unique_ptr<OverlayHUDController> overlayHUDController_;
    std::unique_ptr<InputMethodSwitchCoordinator> inputMethodSwitchCoordinator_;
    std::unique_ptr<MouseConfigStore> mouseConfigStore_;
    std::unique_ptr<GlobalEventTap> globalEventTap_;
    std::unique_ptr<SpaceSwitcher> spaceSwitcher_;
    std::unique_ptr<MouseActionDispatcher> mouseActionDispatcher_;
    std::unique_ptr<MouseResizeCursorDetector> mouseResizeCursorDetector_;
    std::unique_ptr<MouseClickManager> mouseClickManager_;
    std::unique_ptr<MouseGestureManager> mouseGestureManager_;
    std::unique_ptr<MouseScrollManager> mouseScrollManager_;
    Subscription changesOfOthers_;
};

} // namespace brindlex
