#pragma once

#include "clipboard/ClipboardPreferenceKeys.h"
#include "inputmethod/InputMethodPreferenceKeys.h"
#include "mouse/MousePreferenceKeys.h"
#include "platform/UserFolders.h"
#include "preferences/PreferenceTable.h"
#include "screenshot/ScreenshotPreferenceKeys.h"
#include "shell/ShellPreferenceKeys.h"

#include <string>
#include <tuple>
#include <vector>

namespace brindlex {

/// All preferences of the program in their order, as the rooms declare them.
/// A preference is named by its member, `&UserDefaultPreferenceKeys::launchAtLogin`.
struct UserDefaultPreferenceKeys {
    using Keys = UserDefaultPreferenceKeys;
    using Shell = ShellPreferenceKeys;
    using Screenshot = ScreenshotPreferenceKeys;
    using InputMethod = InputMethodPreferenceKeys;
    using Clipboard = ClipboardPreferenceKeys;

    PreferenceKey<MainWindowTab> selectedMainWindowTab = Shell{}.selectedMainWindowTab;
    PreferenceKey<bool> launchAtLogin = Shell{}.launchAtLogin;
    PreferenceKey<bool> showsDockIcon = Shell{}.showsDockIcon;
    /// The default is the user's download folder; only `forUser` knows it.
    PreferenceKey<std::string> screenshotSaveDirectoryPath
        = Screenshot{}.screenshotSaveDirectoryPath;
    PreferenceKey<HotkeyCombo> screenshotHotkey = Screenshot{}.screenshotHotkey;
    PreferenceKey<std::string> baiduOCRAPIToken = Screenshot{}.baiduOCRAPIToken;
    PreferenceKey<std::string, Seeding::never> lastRunAppVersion = Shell{}.lastRunAppVersion;
    PreferenceKey<std::string, Seeding::never> updatedFromVersion = Shell{}.updatedFromVersion;
    PreferenceKey<LanguagePreference> languagePreference = Shell{}.languagePreference;
    PreferenceKey<InputMethodConfig> inputMethodConfig = InputMethod{}.inputMethodConfig;
    PreferenceKey<SmartInputMethodConfig> smartInputMethodConfig
        = InputMethod{}.smartInputMethodConfig;
    PreferenceKey<MouseConfig> mouseConfig = MousePreferenceKeys{}.mouseConfig;
    PreferenceKey<bool> clipboardHistoryEnabled = Clipboard{}.clipboardHistoryEnabled;
    PreferenceKey<bool> clipboardAutoPaste = Clipboard{}.clipboardAutoPaste;
    PreferenceKey<std::int64_t> clipboardMaxItems = Clipboard{}.clipboardMaxItems;
    PreferenceKey<HotkeyCombo> clipboardHotkey = Clipboard{}.clipboardHotkey;
    PreferenceKey<bool> shouldRestoreFocusAfterLanguageRelaunch
        = Shell{}.shouldRestoreFocusAfterLanguageRelaunch;
    PreferenceKey<std::vector<std::string>, Seeding::never> appleLanguages = Shell{}.appleLanguages;

    bool operator==(const UserDefaultPreferenceKeys&) const = default;

    /// The keys with the defaults that hold for the user at this moment.
    static UserDefaultPreferenceKeys forUser(const UserFolders& folders);

    static constexpr auto members()
    {
        return std::tuple{&Keys::selectedMainWindowTab, &Keys::launchAtLogin, &Keys::showsDockIcon,
            &Keys::screenshotSaveDirectoryPath, &Keys::screenshotHotkey, &Keys::baiduOCRAPIToken,
            &Keys::lastRunAppVersion, &Keys::updatedFromVersion, &Keys::languagePreference,
            &Keys::inputMethodConfig, &Keys::smartInputMethodConfig, &Keys::mouseConfig,
            &Keys::clipboardHistoryEnabled, &Keys::clipboardAutoPaste, &Keys::clipboardMaxItems,
            &Keys::clipboardHotkey, &Keys::shouldRestoreFocusAfterLanguageRelaunch,
            &Keys::appleLanguages};
    }
};

} // namespace brindlex
