#pragma once

#include "inputmethod/InputMethodPreferenceKeys.h"
#include "preferences/ConfigurationStore.h"

namespace brindlex {

extern template class ConfigurationStore<InputMethodConfig>;

/// Keeps the hand-written switching rules under the preference "inputMethodConfig".
class InputMethodConfigStore : public ConfigurationStore<InputMethodConfig> {
public:
    explicit InputMethodConfigStore(UserDefaultsType& defaults)
        : ConfigurationStore(defaults, InputMethodPreferenceKeys{}.inputMethodConfig)
    {
    }
};

} // namespace brindlex
