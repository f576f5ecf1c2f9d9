#include "app/UserDefaultPreferenceKeys.h"

#include "preferences/UserDefaultsStorageBox.h"

namespace brindlex {

template struct PreferenceForm<HotkeyCombo>;

UserDefaultPreferenceKeys UserDefaultPreferenceKeys::forUser(const UserFolders& folders)
{
    UserDefaultPreferenceKeys keys;
    const auto downloads = folders.downloads();
    keys.screenshotSaveDirectoryPath.defaultValue
        = downloads ? downloads->string() : (folders.home() / "Downloads").string();
    return keys;
}

} // namespace brindlex
