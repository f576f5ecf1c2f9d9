#pragma once

#include "app/ConfigurationStore.h"
#include "inputmethod/SmartInputMethodConfig.h"

namespace brindlex {

/// Keeps what was learned from the user under the preference "smartInputMethodConfig".
class SmartInputMethodConfigStore : public ConfigurationStore<SmartInputMethodConfig> {
public:
    explicit SmartInputMethodConfigStore(UserDefaultsType& defaults);

    /// Normalises the statistics, which publishes once more when that changes anything, and writes.
    void persist() override;
};

} // namespace brindlex
