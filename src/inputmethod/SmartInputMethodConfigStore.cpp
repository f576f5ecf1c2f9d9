#include "inputmethod/SmartInputMethodConfigStore.h"

#include "app/UserDefaultPreferenceKeys.h"

#include <utility>

namespace brindlex {

SmartInputMethodConfigStore::SmartInputMethodConfigStore(UserDefaultsType& defaults)
    : ConfigurationStore(defaults, UserDefaultPreferenceKeys{}.smartInputMethodConfig)
{
}

void SmartInputMethodConfigStore::persist()
{
    auto normalized = config().value();
    normalized.normalizeStats();
    if (normalized != config().value())
        applyLoadedConfig(std::move(normalized));
    write();
}

} // namespace brindlex
