#include "app/UserDefaultPreferenceKeys.h"

namespace brindlex {

UserDefaultPreferenceKeys UserDefaultPreferenceKeys::forUser(const UserFolders& folders)
{
    UserDefaultPreferenceKeys keys;
    const auto downloads = folders.downloads();
    keys.screenshotSaveDirectoryPath.defaultValue
        = downloads ? downloads->string() : (folders.home() / "Downloads").string();
    return keys;
}

} // namespace brindlex
