#include "mouse/MousePreferenceKeys.h"

#include "preferences/UserDefaultsStorageBox.h"

namespace brindlex {

template struct PreferenceForm<MouseConfig>;

} // namespace brindlex
