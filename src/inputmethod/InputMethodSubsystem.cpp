#include "inputmethod/InputMethodSubsystem.h"

namespace brindlex {

InputMethodConfigStore& InputMethodSubsystem::configStore()
{
    return configStore_.get(platform_.defaults);
}

SmartInputMethodConfigStore& InputMethodSubsystem::smartConfigStore()
{
    return smartConfigStore_.get(platform_.defaults);
}

InputMethodSwitchCoordinator& InputMethodSubsystem::switchCoordinator()
{
    return switchCoordinator_.get(configStore(), smartConfigStore(), switchReasons_,
        SwitchAbilities{
            .mainThread = platform_.mainThread,
            .clock = platform_.clock,
            .applications = platform_.applications,
            .bundles = platform_.bundles,
            .icons = platform_.icons,
            .container = platform_.container,
            .inputSources = platform_.inputSources,
            .browserPages = platform_.browserPages,
        });
}

void InputMethodSubsystem::reload()
{
    // What was learned comes first: rules that are switched on or off write it back at once.
    if (auto* store = smartConfigStore_.ifMade())
        store->reload();
    if (auto* store = configStore_.ifMade())
        store->reload();
}

} // namespace brindlex
