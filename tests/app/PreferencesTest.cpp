#include "app/Preferences.h"

#include "platform/simulated/SimulatedUserDefaults.h"
#include "platform/simulated/SimulatedUserFolders.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Keys = UserDefaultPreferenceKeys;

class PreferencesTest : public testing::Test {
protected:
    SimulatedUserDefaults defaults;
    SimulatedUserFolders folders;
    Preferences preferences{defaults, folders};
};

TEST_F(PreferencesTest, readAndWriteByName)
{
    EXPECT_EQ(preferences.read(&Keys::clipboardMaxItems), 200);
    preferences.write(&Keys::clipboardMaxItems, 50);
    EXPECT_EQ(preferences.read(&Keys::clipboardMaxItems), 50);
    EXPECT_EQ(defaults.value("clipboardMaxItems"), PreferenceValue(std::int64_t{50}));

    preferences.write(&Keys::selectedMainWindowTab, MainWindowTab::mouse);
    EXPECT_EQ(preferences.read(&Keys::selectedMainWindowTab), MainWindowTab::mouse);
}

TEST_F(PreferencesTest, knowWhetherAnythingIsStored)
{
    EXPECT_FALSE(preferences.hasStoredObject(&Keys::languagePreference));
    defaults.set("languagePreference", std::string("klingon"));
    EXPECT_TRUE(preferences.hasStoredObject(&Keys::languagePreference));
    EXPECT_EQ(preferences.read(&Keys::languagePreference), LanguagePreference::system);
}

TEST_F(PreferencesTest, takeAStoredValueAway)
{
    preferences.write(&Keys::appleLanguages, {"de"});
    preferences.remove(&Keys::appleLanguages);
    EXPECT_FALSE(preferences.hasStoredObject(&Keys::appleLanguages));
    EXPECT_EQ(preferences.read(&Keys::appleLanguages), std::vector<std::string>{});
}

TEST_F(PreferencesTest, followTheDownloadFolderWhileNothingIsStored)
{
    EXPECT_EQ(preferences.read(&Keys::screenshotSaveDirectoryPath), "/home/user/Downloads");
    folders.downloadsFolder = "/elsewhere";
    EXPECT_EQ(preferences.read(&Keys::screenshotSaveDirectoryPath), "/elsewhere");
    preferences.write(&Keys::screenshotSaveDirectoryPath, "/chosen");
    EXPECT_EQ(preferences.read(&Keys::screenshotSaveDirectoryPath), "/chosen");
}

} // namespace
} // namespace brindlex
