#include "platform/linux/system/XdgUserFolders.h"

#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <map>

namespace brindlex {
namespace {

using Variables = std::map<std::string, std::string>;

XdgUserFolders foldersWith(const Variables& variables)
{
    return XdgUserFolders([&](const char* name) {
        const auto found = variables.find(name);
        return found == variables.end() ? nullptr : found->second.c_str();
    });
}

std::optional<std::filesystem::path> downloads(std::string_view userDirs)
{
    return userDirectory(userDirs, "XDG_DOWNLOAD_DIR", "/home/user");
}

TEST(XdgUserFolders, haveTheStandardDefaults)
{
    const auto folders = foldersWith({{"HOME", "/home/user"}});
    EXPECT_EQ(folders.home(), "/home/user");
    EXPECT_EQ(folders.configHome(), "/home/user/.config");
    EXPECT_EQ(folders.dataHome(), "/home/user/.local/share");
    EXPECT_EQ(folders.downloads(), std::nullopt);
}

TEST(XdgUserFolders, followTheEnvironment)
{
    const auto folders = foldersWith(
        {{"HOME", "/home/user"}, {"XDG_CONFIG_HOME", "/c"}, {"XDG_DATA_HOME", "/d/e"}});
    EXPECT_EQ(folders.configHome(), "/c");
    EXPECT_EQ(folders.dataHome(), "/d/e");
}

TEST(XdgUserFolders, takeRelativeAndEmptyFoldersForNotGiven)
{
    const auto folders = foldersWith(
        {{"HOME", "/home/user"}, {"XDG_CONFIG_HOME", "config"}, {"XDG_DATA_HOME", ""}});
    EXPECT_EQ(folders.configHome(), "/home/user/.config");
    EXPECT_EQ(folders.dataHome(), "/home/user/.local/share");
}

TEST(XdgUserFolders, findTheHomeOfTheUserWithoutAVariable)
{
    for (const auto& variables :
        {Variables{}, Variables{{"HOME", "here"}}, Variables{{"HOME", ""}}})
        EXPECT_TRUE(foldersWith(variables).home().is_absolute());
}

TEST(XdgUserFolders, readTheDownloadFolderFromTheConfigHome)
{
    const TemporaryFolder folder;
    const auto folders
        = foldersWith({{"HOME", "/home/user"}, {"XDG_CONFIG_HOME", folder.path().string()}});
    EXPECT_EQ(folders.downloads(), std::nullopt);
    write(folder.path() / "user-dirs.dirs", "XDG_DOWNLOAD_DIR=\"$HOME/Téléchargements\"\n");
    EXPECT_EQ(folders.downloads(), "/home/user/Téléchargements");
}

TEST(XdgUserFolders, haveNoDownloadFolderWhenTheListCannotBeRead)
{
    const TemporaryFolder folder;
    const auto folders
        = foldersWith({{"HOME", "/home/user"}, {"XDG_CONFIG_HOME", folder.path().string()}});
    std::filesystem::create_directory(folder.path() / "user-dirs.dirs");
    EXPECT_EQ(folders.downloads(), std::nullopt);
}

TEST(UserDirectory, isFoundInTheFormOfTheFile)
{
    EXPECT_EQ(downloads("# comment\n\nXDG_DESKTOP_DIR=\"$HOME/Desktop\"\n"
                        "XDG_DOWNLOAD_DIR=\"$HOME/Downloads\"\n"),
        "/home/user/Downloads");
    EXPECT_EQ(downloads("XDG_DOWNLOAD_DIR=\"/data/downloads\""), "/data/downloads");
    EXPECT_EQ(downloads("  XDG_DOWNLOAD_DIR = \"/data/a b\" \r\n"), "/data/a b");
    EXPECT_EQ(downloads("XDG_DOWNLOAD_DIR=\"$HOME/with \\\"quotes\\\" and \\$\""),
        "/home/user/with \"quotes\" and $");
    EXPECT_EQ(downloads("XDG_DOWNLOAD_DIR=\"$HOME/a/\""), "/home/user/a");
}

TEST(UserDirectory, isThatOfTheLastLine)
{
    EXPECT_EQ(downloads("XDG_DOWNLOAD_DIR=\"/one\"\nXDG_DOWNLOAD_DIR=\"/two\"\n"), "/two");
    EXPECT_EQ(downloads("XDG_DOWNLOAD_DIR=\"/one\"\nXDG_DOWNLOAD_DIR=\"two\"\n"), "/one");
}

TEST(UserDirectory, isNothingWhenItIsTheHomeFolder)
{
    EXPECT_EQ(downloads("XDG_DOWNLOAD_DIR=\"$HOME/\""), std::nullopt);
    EXPECT_EQ(downloads("XDG_DOWNLOAD_DIR=\"$HOME\""), std::nullopt);
    EXPECT_EQ(downloads("XDG_DOWNLOAD_DIR=\"/home/user\""), std::nullopt);
}

TEST(UserDirectory, isNothingForAnythingElse)
{
    for (const std::string text :
        {"", "XDG_DOWNLOAD_DIR", "XDG_DOWNLOAD_DIR=", "XDG_DOWNLOAD_DIR=\"",
            "XDG_DOWNLOAD_DIR=\"\"", "XDG_DOWNLOAD_DIR=/unquoted", "XDG_DOWNLOAD_DIR=\"relative\"",
            "XDG_DOWNLOAD_DIR=\"/unfinished", "XDG_DOWNLOAD_DIR=\"$HOMER/x\"",
            "XDG_DOWNLOAD_DIR=\"${HOME}/x\"", "#XDG_DOWNLOAD_DIR=\"/x\"", "xdg_download_dir=\"/x\"",
            "MY_XDG_DOWNLOAD_DIR=\"/x\"", "\xFF\xFE=\"\\"})
        EXPECT_EQ(downloads(text), std::nullopt) << text;
    EXPECT_EQ(downloads(std::string_view("XDG_DOWNLOAD_DIR=\"/a\0b\"", 23)), std::nullopt);
}

} // namespace
} // namespace brindlex
