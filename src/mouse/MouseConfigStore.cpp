#include "mouse/MouseConfigStore.h"

namespace brindlex {

template class ConfigurationStore<MouseConfig>;

} // namespace brindlex
