#pragma once

#include "mouse/MousePreferenceKeys.h"
#include "preferences/ConfigurationStore.h"

namespace brindlex {

extern template class ConfigurationStore<MouseConfig>;

/// Keeps all that the user has set about the mouse under the preference "mouseConfig".
class MouseConfigStore : public ConfigurationStore<MouseConfig> {
public:
    explicit MouseConfigStore(UserDefaultsType& defaults)
        : ConfigurationStore(defaults, MousePreferenceKeys{}.mouseConfig)
    {
    }
};

} // namespace brindlex
