#include "platform/linux/applications/DesktopFolders.h"

#include "support/basics/ScopedEnvironment.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Paths = std::vector<std::filesystem::path>;
using Texts = std::vector<std::string>;

TEST(DesktopFolders, areTheStandardOnesByDefault)
{
    ScopedEnvironment environment;
    environment.set("HOME", "/home/someone");
    environment.set("XDG_DATA_HOME", std::nullopt);
    environment.set("XDG_DATA_DIRS", "");
    EXPECT_EQ(
        dataFolders(), (Paths{"/home/someone/.local/share", "/usr/local/share", "/usr/share"}));
}

TEST(DesktopFolders, areThoseOfTheEnvironmentEachOnceAndNoRelativeOnes)
{
    ScopedEnvironment environment;
    environment.set("XDG_DATA_HOME", "/own");
    environment.set("XDG_DATA_DIRS", "/shared/:relative::/own:/shared");
    EXPECT_EQ(dataFolders(), (Paths{"/own", "/shared"}));
}

TEST(DesktopFolders, haveSettingsInTheSameWay)
{
    ScopedEnvironment environment;
    environment.set("HOME", "/home/someone");
    environment.set("XDG_CONFIG_HOME", std::nullopt);
    environment.set("XDG_CONFIG_DIRS", std::nullopt);
    EXPECT_EQ(configFolders(), (Paths{"/home/someone/.config", "/etc/xdg"}));
    environment.set("XDG_CONFIG_HOME", "/own");
    environment.set("XDG_CONFIG_DIRS", "/shared:relative:/own");
    EXPECT_EQ(configFolders(), (Paths{"/own", "/shared"}));
}

TEST(DesktopFolders, nameLanguagesFromTheMostSpecificForm)
{
    EXPECT_EQ(
        entryLanguages("", "sr_YU.UTF-8@Latn"), (Texts{"sr_YU@Latn", "sr_YU", "sr@Latn", "sr"}));
    EXPECT_EQ(
        entryLanguages("de:en_GB", "fr_FR.UTF-8"), (Texts{"de", "en_GB", "en", "fr_FR", "fr"}));
    EXPECT_EQ(entryLanguages("de", "C.UTF-8"), Texts());
    EXPECT_EQ(entryLanguages("de", ""), Texts());
    EXPECT_EQ(entryLanguages("", "POSIX"), Texts());
}

} // namespace
} // namespace brindlex
