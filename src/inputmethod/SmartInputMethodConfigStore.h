#pragma once

#include "inputmethod/SmartInputMethodConfig.h"
#include "preferences/ConfigurationStore.h"

namespace brindlex {

extern template class ConfigurationStore<SmartInputMethodConfig>;

/// Keeps what was learned from the user under the preference "smartInputMethodConfig".
class SmartInputMethodConfigStore : public ConfigurationStore<SmartInputMethodConfig> {
public:
    explicit SmartInputMethodConfigStore(UserDefaultsType& defaults);

    /// Normalises the statistics, which publishes once more when that changes anything, and writes.
    void persist() override;
};

} // namespace brindlex
