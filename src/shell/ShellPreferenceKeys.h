#pragma once

#include "preferences/PreferenceKey.h"
#include "shell/LanguagePreference.h"
#include "shell/MainWindowTab.h"

#include <string>
#include <vector>

namespace brindlex {

/// The preferences of the program itself: its window, its language, its start and its versions.
struct ShellPreferenceKeys {
    PreferenceKey<MainWindowTab> selectedMainWindowTab{
        MainWindowTab::general, "selectedMainWindowTab"};
    PreferenceKey<bool> launchAtLogin{false, "launchAtLogin"};
    PreferenceKey<bool> showsDockIcon{true, "showsDockIcon"};
    PreferenceKey<std::string, Seeding::never> lastRunAppVersion{"", "lastRunAppVersion"};
    PreferenceKey<std::string, Seeding::never> updatedFromVersion{"", "updatedFromVersion"};
    PreferenceKey<LanguagePreference> languagePreference{
        LanguagePreference::system, "languagePreference"};
    PreferenceKey<bool> shouldRestoreFocusAfterLanguageRelaunch{
        false, "shouldRestoreFocusAfterLanguageRelaunch"};
    PreferenceKey<std::vector<std::string>, Seeding::never> appleLanguages{{}, "AppleLanguages"};
};

} // namespace brindlex
