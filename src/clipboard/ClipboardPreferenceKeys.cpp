#include "clipboard/ClipboardPreferenceKeys.h"

#include "preferences/UserDefaultsStorageBox.h"

namespace brindlex {

template struct PreferenceForm<HotkeyCombo>;

} // namespace brindlex
