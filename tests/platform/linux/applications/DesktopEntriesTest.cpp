#include "platform/linux/applications/DesktopEntries.h"

#include "support/basics/Eventually.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class DesktopEntriesTest : public testing::Test {
protected:
    void install(const std::string& data, const std::string& file, const std::string& keys = "")
    {
        const auto path = folder.path() / data / "applications" / file;
        std::filesystem::create_directories(path.parent_path());
        write(path, "[Desktop Entry]\nType=Application\nName=" + data + "\n" + keys);
    }
    std::vector<std::string> names()
    {
        std::vector<std::string> result;
        for (const auto& entry : entries.all())
            result.push_back(entry.identifier + " of " + entry.name);
        return result;
    }

    TemporaryFolder folder;
    DesktopEntries entries{{folder.path() / "own", folder.path() / "shared"}, {}};
};

TEST_F(DesktopEntriesTest, isEmptyWithoutFolders)
{
    EXPECT_TRUE(entries.all().empty());
    EXPECT_FALSE(entries.refresh());
}

TEST_F(DesktopEntriesTest, givesAnEntryInAFolderAnIdentifierWithDashes)
{
    install("shared", "kde/org.example.Pad.desktop");
    EXPECT_EQ(names(), std::vector<std::string>{"kde-org.example.Pad of shared"});
    EXPECT_EQ(entries.identifierOf(entries.all().front().path), "kde-org.example.Pad");
}

TEST_F(DesktopEntriesTest, hidesEntriesOfLaterFoldersBehindThoseOfEarlierOnes)
{
    install("own", "a.desktop");
    install("own", "b.desktop", "Hidden=true\n");
    install("shared", "a.desktop");
    install("shared", "b.desktop");
    install("shared", "c.desktop");
    EXPECT_EQ(names(), (std::vector<std::string>{"a of own", "c of shared"}));
}

TEST_F(DesktopEntriesTest, readsAnewOnlyWhenAFolderHasChanged)
{
    install("shared", "a.desktop");
    EXPECT_EQ(entries.all().size(), 1u);
    EXPECT_FALSE(entries.refresh());
    install("own", "b.desktop");
    EXPECT_TRUE(entries.refresh());
    EXPECT_EQ(names(), (std::vector<std::string>{"b of own", "a of shared"}));
    EXPECT_FALSE(entries.refresh());
}

TEST_F(DesktopEntriesTest, survivesFoldersThatContainThemselves)
{
    install("shared", "sub/a.desktop");
    const auto applications = folder.path() / "shared/applications";
    std::filesystem::create_directory_symlink(applications, applications / "sub/loop");
    std::filesystem::create_symlink(applications / "self.desktop", applications / "self.desktop");
    std::filesystem::create_symlink("/no/such/file", applications / "broken.desktop");
    EXPECT_EQ(names(), std::vector<std::string>{"sub-a of shared"});
}

TEST_F(DesktopEntriesTest, takesTheFileNameForAnIdentifierOutsideTheFolders)
{
    EXPECT_EQ(entries.identifierOf("/home/someone/Desktop/pad.desktop"), "pad");
    EXPECT_EQ(entries.identifierOf("/x/bad\xff.desktop"), "bad\uFFFD");
}

} // namespace
} // namespace brindlex
