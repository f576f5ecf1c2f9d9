#include "inputmethod/InputMethodConfigStore.h"

namespace brindlex {

template class ConfigurationStore<InputMethodConfig>;

} // namespace brindlex
