#pragma once

#include "foundation/MadeOnFirstUse.h"
#include "inputmethod/InputMethodConfigStore.h"
#include "inputmethod/InputMethodSwitchCoordinator.h"
#include "inputmethod/SmartInputMethodConfigStore.h"
#include "inputmethod/SwitchReasons.h"
#include "platform/Platform.h"

namespace brindlex {

/// All of input switching: one of each part, made on first use of the abilities of the computer and
/// kept. The platform outlives it. Main thread only.
class InputMethodSubsystem {
public:
    explicit InputMethodSubsystem(Platform& platform) : platform_(platform) { }

    InputMethodConfigStore& configStore();
    SmartInputMethodConfigStore& smartConfigStore();
    const SwitchReasons& switchReasons() const { return switchReasons_; }
    InputMethodSwitchCoordinator& switchCoordinator();

    /// Takes over what another process has written to the preferences.
    void reload();

private:
    Platform& platform_;
    MadeOnFirstUse<InputMethodConfigStore> configStore_;
    MadeOnFirstUse<SmartInputMethodConfigStore> smartConfigStore_;
    SwitchReasons switchReasons_;
    MadeOnFirstUse<InputMethodSwitchCoordinator> switchCoordinator_;
};

} // namespace brindlex
