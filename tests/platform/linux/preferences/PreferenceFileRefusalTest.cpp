#include "platform/linux/preferences/PreferenceFileFixture.h"

#include "support/basics/FileSizeLimit.h"
#include "support/basics/OrdinaryUser.h"

namespace brindlex {
namespace {

namespace files = std::filesystem;

TEST_F(PreferenceFileTest, isLeftAloneWhenItMayNotBeRead)
{
    write(path(), R"({"a":1})");
    files::permissions(path(), files::perms::none);
    {
        const OrdinaryUser user(folder.path());
        PreferenceFile file(path());
        EXPECT_EQ(file.look(Patience::acts), Finding::unreadable);
        EXPECT_EQ(file.look(Patience::acts), Finding::unreadable);
        EXPECT_FALSE(file.write(document(R"({"b":1})"), {"b"}));
        EXPECT_EQ(log.takeLines(),
            std::vector{"ERROR [lifecycle] Preferences cannot be read and are not written: "
                + path().string() + ": Permission denied"});
    }
    files::permissions(path(), files::perms::owner_all);
    EXPECT_EQ(contentOf(path()), R"({"a":1})");
}

TEST_F(PreferenceFileTest, isUsedAgainOnceItMayBeRead)
{
    write(path(), R"({"a":1})");
    files::permissions(path(), files::perms::none);
    PreferenceFile file(path());
    {
        const OrdinaryUser user(folder.path());
        EXPECT_EQ(file.look(Patience::acts), Finding::unreadable);
    }
    files::permissions(path(), files::perms::owner_all);
    EXPECT_TRUE(file.write(document(R"({"b":2})"), {"b"}));
    expectContent(R"({"a":1,"b":2})");
}

TEST_F(PreferenceFileTest, staysAsItWasWhenTheFolderMayNotBeWrittenTo)
{
    makeFileInClosedFolder(R"({"a":1})");
    {
        const OrdinaryUser user(folder.path());
        PreferenceFile file(at("closed/p.json"));
        EXPECT_EQ(file.look(Patience::acts), Finding::changed);
        EXPECT_FALSE(file.write(document(R"({"a":2})"), {"a"}));
        EXPECT_FALSE(file.write(document(R"({"a":2})"), {"a"}));
        EXPECT_EQ(log.takeLines(),
            std::vector{"ERROR [lifecycle] Preferences cannot be written: "
                + at("closed/p.json").string() + ": Permission denied"});
    }
    files::permissions(at("closed"), files::perms(0755));
    EXPECT_EQ(contentOf(at("closed/p.json")), R"({"a":1})");
}

TEST_F(PreferenceFileTest, staysAsItWasWhenItIsDamagedAndCannotBeSetAside)
{
    makeFileInClosedFolder("damage");
    {
        const OrdinaryUser user(folder.path());
        PreferenceFile file(at("closed/p.json"));
        EXPECT_EQ(file.look(Patience::acts), Finding::unreadable);
        EXPECT_FALSE(file.write(document(R"({"a":2})"), {"a"}));
        EXPECT_EQ(log.takeLines(),
            std::vector{"ERROR [lifecycle] Preferences is not JSON and cannot be set aside: "
                + at("closed/p.json").string() + ": Permission denied"});
    }
    files::permissions(at("closed"), files::perms(0755));
    EXPECT_EQ(contentOf(at("closed/p.json")), "damage");
}

TEST_F(PreferenceFileTest, staysAsItWasOnAFullDiskAndIsReportedOncePerFailure)
{
    write(path(), R"({"a":1})");
    PreferenceFile file(path());
    file.look(Patience::acts);
    const auto large = document("{\"a\":\"" + std::string(10'000, 'x') + "\"}");
    {
        const FileSizeLimit limit(4'096);
        EXPECT_FALSE(file.write(large, {"a"}));
        EXPECT_FALSE(file.write(large, {"a"}));
        EXPECT_EQ(contentOf(path()), R"({"a":1})");
    }
    const std::vector reported{
        "ERROR [lifecycle] Preferences cannot be written: " + path().string() + ": File too large"};
    EXPECT_EQ(log.takeLines(), reported);

    EXPECT_TRUE(file.write(large, {"a"}));
    EXPECT_TRUE(isSameDocument(document(contentOf(path())), large));
    {
        const FileSizeLimit limit(4'096);
        EXPECT_FALSE(file.write(document(R"({"b":")" + std::string(20'000, 'x') + "\"}"), {"b"}));
    }
    EXPECT_EQ(log.takeLines(), reported);
}

} // namespace
} // namespace brindlex
