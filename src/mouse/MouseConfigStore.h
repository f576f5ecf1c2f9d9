#pragma once

#include "app/ConfigurationStore.h"
#include "app/UserDefaultPreferenceKeys.h"
#include "mouse/MouseConfig.h"

namespace brindlex {

/// Keeps all that the user has set about the mouse under the preference "mouseConfig".
class MouseConfigStore : public ConfigurationStore<MouseConfig> {
public:
    explicit MouseConfigStore(UserDefaultsType& defaults)
        : ConfigurationStore(defaults, UserDefaultPreferenceKeys{}.mouseConfig)
    {
    }
};

} // namespace brindlex
