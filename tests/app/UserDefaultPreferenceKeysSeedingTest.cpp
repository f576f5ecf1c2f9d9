#include "app/UserDefaultPreferenceKeys.h"

#include "platform/simulated/SimulatedUserDefaults.h"
#include "platform/simulated/SimulatedUserFolders.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

#include <limits>

namespace brindlex {
namespace {

std::vector<std::string> writtenKeys(const SimulatedUserDefaults& defaults)
{
    std::vector<std::string> keys;
    for (const auto& [key, object] : defaults.writes())
        keys.push_back(key);
    return keys;
}

const auto keys = UserDefaultPreferenceKeys::forUser(SimulatedUserFolders());

const std::vector<std::string> seededKeys{"selectedMainWindowTab", "launchAtLogin", "showsDockIcon",
    "screenshotSaveDirectoryPath", "screenshotHotkey", "baiduOCRAPIToken", "languagePreference",
    "inputMethodConfig", "smartInputMethodConfig", "mouseConfig", "clipboardHistoryEnabled",
    "clipboardAutoPaste", "clipboardMaxItems", "clipboardHotkey",
    "shouldRestoreFocusAfterLanguageRelaunch"};

TEST(UserDefaultPreferenceKeysSeeding, writesFifteenPreferencesInOrderAtTheFirstRun)
{
    SimulatedUserDefaults defaults;
    seedDefaults(defaults, keys);

    EXPECT_EQ(writtenKeys(defaults), seededKeys);
    EXPECT_EQ(defaults.value("selectedMainWindowTab"), PreferenceValue("General"));
    EXPECT_EQ(defaults.value("launchAtLogin"), PreferenceValue(false));
    EXPECT_EQ(
        defaults.value("screenshotSaveDirectoryPath"), PreferenceValue("/home/user/Downloads"));
    EXPECT_EQ(defaults.value("clipboardHotkey"), PreferenceValue(R"({"keyCode":9,"modifiers":9})"));
    EXPECT_EQ(defaults.value("clipboardMaxItems"), PreferenceValue(std::int64_t{200}));
}

TEST(UserDefaultPreferenceKeysSeeding, writesNothingAtTheSecondRun)
{
    SimulatedUserDefaults defaults;
    seedDefaults(defaults, keys);
    seedDefaults(defaults, keys);
    EXPECT_EQ(defaults.writes().size(), 15U);
}

TEST(UserDefaultPreferenceKeysSeeding, leavesWhatIsStoredOfWhateverType)
{
    SimulatedUserDefaults defaults;
    defaults.set("showsDockIcon", std::string("no"));
    defaults.set("mouseConfig", std::string("{"));
    defaults.set("clipboardMaxItems", PreferenceJson{"9223372036854775808"});
    seedDefaults(defaults, keys);

    EXPECT_EQ(defaults.writes().size(), 3U + 12U);
    EXPECT_EQ(defaults.value("showsDockIcon"), PreferenceValue("no"));
    EXPECT_EQ(defaults.value("mouseConfig"), PreferenceValue("{"));
    EXPECT_EQ(defaults.value("clipboardMaxItems"),
        PreferenceValue(PreferenceJson{"9223372036854775808"}));
}

TEST(UserDefaultPreferenceKeysSeeding, saysOnceOfEachThatItCannotBeRead)
{
    const RecordedLog log;
    SimulatedUserDefaults defaults;
    defaults.set("AppleLanguages", PreferenceJson{R"(["de",1])"});
    defaults.set("mouseConfig", std::string("{"));
    defaults.set("clipboardHotkey", PreferenceJson{R"({"keyCode":9,"modifiers":1})"});
    seedDefaults(defaults, keys);

    EXPECT_EQ(log.lines(),
        (std::vector<std::string>{
            "WARN [lifecycle] The preference \"mouseConfig\" cannot be read; the default applies",
            "WARN [lifecycle] The preference \"AppleLanguages\" cannot be read; the default "
            "applies"}));
}

TEST(UserDefaultPreferenceKeysSeeding, leavesOutThePreferencesWhoseAbsenceMeansSomething)
{
    SimulatedUserDefaults defaults;
    seedDefaults(defaults, keys);
    EXPECT_EQ(defaults.value("lastRunAppVersion"), std::nullopt);
    EXPECT_EQ(defaults.value("updatedFromVersion"), std::nullopt);
    EXPECT_EQ(defaults.value("AppleLanguages"), std::nullopt);
}

TEST(UserDefaultPreferenceKeysSeeding, writesTheEmptyTextForABoxThatCannotBeEncoded)
{
    auto broken = keys;
    broken.mouseConfig.defaultValue.gesture.distanceThreshold
        = std::numeric_limits<double>::infinity();
    SimulatedUserDefaults defaults;
    seedDefaults(defaults, broken);
    EXPECT_EQ(defaults.value("mouseConfig"), PreferenceValue(""));
}

} // namespace
} // namespace brindlex
