#include "shell/RestoreFocusFlag.h"

#include "shell/ShellPreferenceKeys.h"

namespace brindlex {

bool consumeRestoreFocusFlag(UserDefaults& defaults)
{
    const auto key = ShellPreferenceKeys{}.shouldRestoreFocusAfterLanguageRelaunch;
    if (!readPreference(defaults, key))
        return false;
    writePreference(defaults, key, false);
    defaults.synchronize();
    return true;
}

} // namespace brindlex
