#include "shell/GeneralSettings.h"

#include "platform/simulated/SimulatedComputer.h"
#include "shell/WindowScenes.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class GeneralSettingsTest : public testing::Test {
protected:
    SimulatedComputer computer;
    LaunchAtLoginManager launchAtLogin{computer.defaults, computer.loginItem, computer.activation};
    ShellWindows windows{computer.platform()};
    LanguageManager language{computer.defaults, computer.relaunching, computer.instances};
    GeneralSettings settings{computer.defaults, launchAtLogin, windows, language};
};

TEST_F(GeneralSettingsTest, startsTheProgramAnewForAnotherLanguage)
{
    settings.setLanguage(LanguagePreference::de);

    EXPECT_EQ(settings.language(), LanguagePreference::de);
    EXPECT_EQ(computer.relaunching.instances, 1);
}

TEST_F(GeneralSettingsTest, goesOnWhenThePresentLanguageIsChosenAgain)
{
    settings.setLanguage(LanguagePreference::system);

    EXPECT_EQ(computer.relaunching.instances, 0);
    EXPECT_TRUE(computer.defaults.writes().empty());
}

TEST_F(GeneralSettingsTest, showsWhatTheSystemHasTakenOfTheLaunchAtLogin)
{
    settings.setLaunchAtLogin(true);
    EXPECT_TRUE(settings.launchAtLogin());

    settings.setLaunchAtLogin(false);
    EXPECT_FALSE(settings.launchAtLogin());
}

TEST_F(GeneralSettingsTest, storesWhetherTheProgramHasAPlaceInTheDock)
{
    EXPECT_TRUE(settings.showsDockIcon());

    settings.setShowsDockIcon(false);

    EXPECT_FALSE(settings.showsDockIcon());
}

TEST_F(GeneralSettingsTest, opensThePermissionGuide)
{
    const std::string scene(windowScene::permissions.id);
    EXPECT_FALSE(settings.hasPermissionsGuide());
    computer.programWindows.addScene(scene);
    EXPECT_TRUE(settings.hasPermissionsGuide());

    settings.openPermissionsGuide();

    EXPECT_TRUE(computer.programWindows.window(scene));
}

} // namespace
} // namespace brindlex
