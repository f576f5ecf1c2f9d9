#include "inputmethod/InputMethodPreferenceKeys.h"

#include "preferences/UserDefaultsStorageBox.h"

namespace brindlex {

template struct PreferenceForm<InputMethodConfig>;
template struct PreferenceForm<SmartInputMethodConfig>;

} // namespace brindlex
