#include "app/PreferenceSeeding.h"

#include "app/PreferenceAccess.h"

namespace brindlex {
namespace {

template <UserDefaultPreferenceKey Key>
void seed(UserDefaultsType& defaults, const Key& key)
{
    if (!defaults.value(key.key))
        writePreference(defaults, key, key.defaultValue);
}

} // namespace

void seedDefaults(UserDefaultsType& defaults, const UserDefaultPreferenceKeys& keys)
{
    seed(defaults, keys.selectedMainWindowTab);
    seed(defaults, keys.launchAtLogin);
    seed(defaults, keys.showsDockIcon);
    seed(defaults, keys.screenshotSaveDirectoryPath);
    seed(defaults, keys.screenshotHotkey);
    seed(defaults, keys.baiduOCRAPIToken);
    seed(defaults, keys.languagePreference);
    seed(defaults, keys.inputMethodConfig);
    seed(defaults, keys.smartInputMethodConfig);
    seed(defaults, keys.mouseConfig);
    seed(defaults, keys.clipboardHistoryEnabled);
    seed(defaults, keys.clipboardAutoPaste);
    seed(defaults, keys.clipboardMaxItems);
    seed(defaults, keys.clipboardHotkey);
    seed(defaults, keys.shouldRestoreFocusAfterLanguageRelaunch);
}

} // namespace brindlex
