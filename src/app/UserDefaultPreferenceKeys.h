#pragma once

#include "app/LanguagePreference.h"
#include "app/MainWindowTab.h"
#include "app/PreferenceKey.h"
#include "inputmethod/InputMethodConfig.h"
#include "inputmethod/SmartInputMethodConfig.h"
#include "mouse/HotkeyCombo.h"
#include "mouse/MouseConfig.h"
#include "platform/UserFolders.h"

#include <cstdint>
#include <string>
#include <vector>

namespace brindlex {

/// All preferences: the one place that knows under what they are stored and what their defaults
/// are. A preference is named by its member, `&UserDefaultPreferenceKeys::launchAtLogin`.
struct UserDefaultPreferenceKeys {
    PreferenceKey<MainWindowTab> selectedMainWindowTab{
        MainWindowTab::general, "selectedMainWindowTab"};
    PreferenceKey<bool> launchAtLogin{false, "launchAtLogin"};
    PreferenceKey<bool> showsDockIcon{true, "showsDockIcon"};
    /// The default is the user's download folder; only `forUser` knows it.
    PreferenceKey<std::string> screenshotSaveDirectoryPath{"", "screenshotSaveDirectoryPath"};
    /// Option and the key A.
    PreferenceKey<HotkeyCombo> screenshotHotkey{{0, ModifierSet::option}, "screenshotHotkey"};
    PreferenceKey<std::string> baiduOCRAPIToken{"", "baiduOCRAPIToken"};
    PreferenceKey<std::string> lastRunAppVersion{"", "lastRunAppVersion"};
    PreferenceKey<std::string> updatedFromVersion{"", "updatedFromVersion"};
    PreferenceKey<LanguagePreference> languagePreference{
        LanguagePreference::system, "languagePreference"};
    PreferenceKey<InputMethodConfig> inputMethodConfig{{}, "inputMethodConfig"};
    PreferenceKey<SmartInputMethodConfig> smartInputMethodConfig{{}, "smartInputMethodConfig"};
    PreferenceKey<MouseConfig> mouseConfig{{}, "mouseConfig"};
    PreferenceKey<bool> clipboardHistoryEnabled{true, "clipboardHistoryEnabled"};
    PreferenceKey<bool> clipboardAutoPaste{true, "clipboardAutoPaste"};
    PreferenceKey<std::int64_t> clipboardMaxItems{200, "clipboardMaxItems"};
    /// Command, shift and the key V.
    PreferenceKey<HotkeyCombo> clipboardHotkey{
        {9, ModifierSet::command | ModifierSet::shift}, "clipboardHotkey"};
    PreferenceKey<bool> shouldRestoreFocusAfterLanguageRelaunch{
        false, "shouldRestoreFocusAfterLanguageRelaunch"};
    PreferenceKey<std::vector<std::string>> appleLanguages{{}, "AppleLanguages"};

    bool operator==(const UserDefaultPreferenceKeys&) const = default;

    /// The keys with the defaults that hold for the user at this moment.
    static UserDefaultPreferenceKeys forUser(const UserFolders& folders);
};

} // namespace brindlex
