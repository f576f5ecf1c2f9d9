#include "app/UserDefaultPreferenceKeys.h"

#include "foundation/JsonForm.h"
#include "platform/simulated/SimulatedUserFolders.h"
#include "preferences/PreferenceKey.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace brindlex {
namespace {

using Keys = UserDefaultPreferenceKeys;

/// What the table says of a preference: its name and the stored form of its default.
using Row = std::pair<std::string, PreferenceValue>;

template <UserDefaultPreferenceKey Key>
Row row(const Key& key)
{
    return {key.key, PreferenceForm<typename Key::Value>::stored(key.defaultValue)};
}

/// All keys in the order of the fields.
auto all(const Keys& keys)
{
    const auto& [tab, login, dock, directory, screenshotHotkey, token, lastRun, updatedFrom,
        language, inputMethod, smart, mouse, history, autoPaste, items, clipboardHotkey, focus,
        languages]
        = keys;
    return std::vector{row(tab), row(login), row(dock), row(directory), row(screenshotHotkey),
        row(token), row(lastRun), row(updatedFrom), row(language), row(inputMethod), row(smart),
        row(mouse), row(history), row(autoPaste), row(items), row(clipboardHotkey), row(focus),
        row(languages)};
}

TEST(UserDefaultPreferenceKeys, areTheTableInItsOrder)
{
    const std::vector<Row> table{
        {"selectedMainWindowTab", "General"},
        {"launchAtLogin", false},
        {"showsDockIcon", true},
        {"screenshotSaveDirectoryPath", "/home/user/Downloads"},
        {"screenshotHotkey", R"({"keyCode":0,"modifiers":2})"},
        {"baiduOCRAPIToken", ""},
        {"lastRunAppVersion", ""},
        {"updatedFromVersion", ""},
        {"languagePreference", "system"},
        {"inputMethodConfig",
            R"({"enabled":true,"rules":[],"domainRulesEnabled":false,"domainRules":[],)"
            R"("showHUD":true})"},
        {"smartInputMethodConfig",
            R"({"enabled":false,"learningEnabled":true,"priority":"afterManualRules",)"
            R"("thresholdRatio":80,"windowSize":10,"appLimit":"top20","appStats":[],)"
            R"("appActivations":{}})"},
        {"mouseConfig",
            R"({"click":{"enabled":true,"bindings":[]},)"
            R"("gesture":{"enabled":true,"bindings":[],"distanceThreshold":30.0},)"
            R"("scroll":{"smoothEnabled":false,"smoothDuration":0.18,"speedMultiplier":1.0,)"
            R"("acceleration":0.0,"invertVertical":false,"invertHorizontal":false,)"
            R"("disabledApps":[]}})"},
        {"clipboardHistoryEnabled", true},
        {"clipboardAutoPaste", true},
        {"clipboardMaxItems", std::int64_t{200}},
        {"clipboardHotkey", R"({"keyCode":9,"modifiers":9})"},
        {"shouldRestoreFocusAfterLanguageRelaunch", false},
        {"AppleLanguages", std::vector<std::string>{}},
    };
    EXPECT_EQ(all(Keys::forUser(SimulatedUserFolders())), table);
}

TEST(UserDefaultPreferenceKeys, takeTheDownloadFolderAsItIsWhenAsked)
{
    SimulatedUserFolders folders("/home/somebody");
    EXPECT_EQ(Keys::forUser(folders).screenshotSaveDirectoryPath.defaultValue,
        "/home/somebody/Downloads");

    folders.downloadsFolder = "/data/Téléchargements";
    EXPECT_EQ(
        Keys::forUser(folders).screenshotSaveDirectoryPath.defaultValue, "/data/Téléchargements");

    folders.downloadsFolder.reset();
    EXPECT_EQ(Keys::forUser(folders).screenshotSaveDirectoryPath.defaultValue,
        "/home/somebody/Downloads");
}

TEST(UserDefaultPreferenceKeys, haveTheTabsAndLanguagesInTheirOrder)
{
    std::vector<std::string> tabs;
    for (const auto tab : allCases<MainWindowTab>())
        tabs.emplace_back(storedValue(tab));
    EXPECT_EQ(tabs,
        (std::vector<std::string>{
            "General", "Finder", "Keyboard", "Mouse", "Clipboard", "Dictation", "About"}));

    std::vector<std::string> languages;
    for (const auto language : allCases<LanguagePreference>())
        languages.emplace_back(storedValue(language));
    EXPECT_EQ(languages,
        (std::vector<std::string>{
            "system", "en", "zh-Hans", "zh-Hant", "ja", "fr", "es", "de", "ko"}));
    EXPECT_EQ(languageCode(LanguagePreference::system), std::nullopt);
    EXPECT_EQ(languageCode(LanguagePreference::zhHans), "zh-Hans");
}

} // namespace
} // namespace brindlex
