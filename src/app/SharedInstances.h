#pragma once

#include "app/OverlayHUDController.h"
#include "app/Platform.h"
#include "app/Preferences.h"
#include "inputmethod/InputMethodConfigStore.h"
#include "inputmethod/InputMethodSwitchCoordinator.h"
#include "inputmethod/SmartInputMethodConfigStore.h"

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

private:
    void reloadStores();

    Platform& platform_;
    Preferences preferences_;
    std::unique_ptr<InputMethodConfigStore> inputMethodConfigStore_;
    std::unique_ptr<SmartInputMethodConfigStore> smartInputMethodConfigStore_;
    std::unique_ptr<OverlayHUDController> overlayHUDController_;
    std::unique_ptr<InputMethodSwitchCoordinator> inputMethodSwitchCoordinator_;
    Subscription changesOfOthers_;
};

} // namespace brindlex
