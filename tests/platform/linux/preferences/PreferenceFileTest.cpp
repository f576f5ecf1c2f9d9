#include "platform/linux/preferences/PreferenceFileFixture.h"

#include "platform/linux/preferences/FolderLock.h"

#include <chrono>
#include <sys/stat.h>

namespace brindlex {
namespace {

namespace files = std::filesystem;

TEST_F(PreferenceFileTest, isEmptyWhereThereIsNone)
{
    PreferenceFile file(path());
    EXPECT_EQ(file.look(Patience::acts), Finding::changed);
    EXPECT_TRUE(file.document().empty());
    EXPECT_EQ(file.look(Patience::waits), Finding::unchanged);
    EXPECT_FALSE(files::exists(path()));
    EXPECT_EQ(log.lines(), std::vector<std::string>{});
}

TEST_F(PreferenceFileTest, isReadOnceAndAgainWhenItIsAnother)
{
    write(path(), R"({"a":1})");
    PreferenceFile file(path());
    EXPECT_EQ(file.look(Patience::acts), Finding::changed);
    EXPECT_TRUE(isSameDocument(file.document(), document(R"({"a":1})")));
    EXPECT_EQ(file.look(Patience::acts), Finding::unchanged);

    write(path(), R"({"a":1,"b":2})");
    EXPECT_EQ(file.look(Patience::waits), Finding::changed);
    EXPECT_TRUE(isSameDocument(file.document(), document(R"({"a":1,"b":2})")));
}

TEST_F(PreferenceFileTest, isMadeForTheUserAloneWithItsFolders)
{
    PreferenceFile file(at("config/deep/p.json"));
    EXPECT_TRUE(file.write(document(R"({"a":1})"), {"a"}));
    struct stat status = {};
    ASSERT_EQ(::stat(at("config/deep/p.json").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
    for (const auto folderMade : {"config", "config/deep"})
        EXPECT_EQ(files::status(at(folderMade)).permissions(), files::perms(0700)) << folderMade;
}

TEST_F(PreferenceFileTest, doesNotSeeItsOwnWriteAsAChange)
{
    PreferenceFile file(path());
    EXPECT_TRUE(file.write(document(R"({"a":1})"), {"a"}));
    EXPECT_EQ(file.look(Patience::waits), Finding::unchanged);
    EXPECT_TRUE(isSameDocument(file.document(), document(R"({"a":1})")));
}

TEST_F(PreferenceFileTest, isNotWrittenWhenItHoldsWhatIsToBeWritten)
{
    write(path(), R"({"a":1})");
    PreferenceFile file(path());
    file.look(Patience::acts);
    EXPECT_TRUE(file.write(document(R"({"a":1})"), {"a", "b"}));
    EXPECT_EQ(contentOf(path()), R"({"a":1})");
}

TEST_F(PreferenceFileTest, keepsWhatOthersHaveWrittenUnderOtherKeys)
{
    write(path(), R"({"a":1,"b":1,"c":1,"other":{"deep":[null,1]}})");
    PreferenceFile file(path());
    file.look(Patience::acts);
    const auto memory = file.document();
    write(path(), R"({"a":2,"b":2,"new":[1,"x"],"other":{"deep":[null,1]}})");

    auto changed = memory;
    changed["b"] = storedPreference(std::int64_t{9});
    EXPECT_TRUE(file.write(changed, {"b"}));
    expectContent(R"({"a":2,"b":9,"new":[1,"x"],"other":{"deep":[null,1]}})");
    EXPECT_TRUE(isSameDocument(file.document(), document(contentOf(path()))));
}

TEST_F(PreferenceFileTest, isWrittenWholeWhereItHasVanished)
{
    write(path(), R"({"a":1,"b":1})");
    PreferenceFile file(path());
    file.look(Patience::acts);
    files::remove(path());
    EXPECT_EQ(file.look(Patience::waits), Finding::unsettled);
    EXPECT_TRUE(file.write(document(R"({"a":1,"b":2})"), {"b"}));
    expectContent(R"({"a":1,"b":2})");
}

TEST_F(PreferenceFileTest, isEmptyOnceItIsSettledThatItHasVanished)
{
    write(path(), R"({"a":1})");
    PreferenceFile file(path());
    file.look(Patience::acts);
    files::remove(path());
    EXPECT_EQ(file.look(Patience::acts), Finding::changed);
    EXPECT_TRUE(file.document().empty());
}

TEST_F(PreferenceFileTest, isReadAndWrittenThroughASymbolicLink)
{
    files::create_directory(at("dotfiles"));
    write(at("dotfiles/real.json"), R"({"a":1})");
    files::create_symlink("dotfiles/real.json", path());
    PreferenceFile file(path());
    EXPECT_EQ(file.look(Patience::acts), Finding::changed);
    EXPECT_TRUE(file.write(document(R"({"a":2})"), {"a"}));
    EXPECT_TRUE(files::is_symlink(path()));
    EXPECT_TRUE(
        isSameDocument(document(contentOf(at("dotfiles/real.json"))), document(R"({"a":2})")));

    write(at("dotfiles/real.json"), "damage");
    EXPECT_EQ(file.look(Patience::acts), Finding::setAside);
    EXPECT_EQ(contentOf(at("dotfiles/real.json.corrupt")), "damage");
    EXPECT_TRUE(file.write(document(R"({"a":3})"), {"a"}));
    EXPECT_TRUE(
        isSameDocument(document(contentOf(at("dotfiles/real.json"))), document(R"({"a":3})")));
}

TEST_F(PreferenceFileTest, isWrittenAlthoughAStoppedProcessHoldsTheLock)
{
    const FolderLock lock(folder.path());
    ASSERT_TRUE(lock.isHeld());
    PreferenceFile file(path());
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(file.write(document(R"({"a":1})"), {"a"}));
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    expectContent(R"({"a":1})");
}

} // namespace
} // namespace brindlex
