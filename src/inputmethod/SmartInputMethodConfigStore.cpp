#include "inputmethod/SmartInputMethodConfigStore.h"

#include "inputmethod/InputMethodPreferenceKeys.h"

#include <utility>

namespace brindlex {

template class ConfigurationStore<SmartInputMethodConfig>;

SmartInputMethodConfigStore::SmartInputMethodConfigStore(UserDefaultsType& defaults)
    : ConfigurationStore(defaults, InputMethodPreferenceKeys{}.smartInputMethodConfig)
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
