#include "foundation/PrivateFolder.h"

#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace brindlex {
namespace {

namespace fs = std::filesystem;

TEST(PrivateFolder, isMadeWithAllAboveItForTheUserAlone)
{
    const TemporaryFolder folder;
    fs::permissions(folder.path(), fs::perms(0755));

    EXPECT_EQ(makePrivateFolder(folder.path() / "config" / "deep"), 0);

    for (const auto made : {"config", "config/deep"})
        EXPECT_EQ(fs::status(folder.path() / made).permissions(), fs::perms(0700)) << made;
    EXPECT_EQ(fs::status(folder.path()).permissions(), fs::perms(0755)) << "It was there.";
}

TEST(PrivateFolder, isNotMadeTwice)
{
    const TemporaryFolder folder;
    fs::permissions(folder.path(), fs::perms(0750));
    EXPECT_EQ(makePrivateFolder(folder.path()), 0);
    EXPECT_EQ(fs::status(folder.path()).permissions(), fs::perms(0750));
}

TEST(PrivateFolder, saysWhyItCannotBe)
{
    const TemporaryFolder folder;
    write(folder.path() / "file", "");
    EXPECT_EQ(makePrivateFolder(folder.path() / "file/config"), ENOTDIR);
}

} // namespace
} // namespace brindlex
