#pragma once

#include "app/ConfigurationStore.h"
#include "app/UserDefaultPreferenceKeys.h"
#include "inputmethod/InputMethodConfig.h"

namespace brindlex {

/// Keeps the hand-written switching rules under the preference "inputMethodConfig".
class InputMethodConfigStore : public ConfigurationStore<InputMethodConfig> {
public:
    explicit InputMethodConfigStore(UserDefaultsType& defaults)
        : ConfigurationStore(defaults, UserDefaultPreferenceKeys{}.inputMethodConfig)
    {
    }
};

} // namespace brindlex
