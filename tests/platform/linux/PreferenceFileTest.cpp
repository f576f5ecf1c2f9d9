#include "platform/linux/PreferenceFile.h"

#include "platform/linux/FolderLock.h"
#include "support/FileSizeLimit.h"
#include "support/OrdinaryUser.h"
#include "support/RecordedLog.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <sys/stat.h>

namespace brindlex {
namespace {

using Finding = PreferenceFile::Finding;
using Patience = PreferenceFile::Patience;
namespace files = std::filesystem;

PreferenceDocument document(const std::string& text) { return parsePreferences(text).value(); }

class PreferenceFileTest : public testing::Test {
protected:
    files::path at(const std::string& name) const { return folder.path() / name; }
    files::path path() const { return at("p.json"); }

    void expectContent(const std::string& text)
    {
        EXPECT_TRUE(isSameDocument(document(contentOf(path())), document(text)))
            << contentOf(path());
    }

    /// Expects that what stands in the file's place is set aside for that reason.
    void expectSetAside(const std::string& reason)
    {
        PreferenceFile file(path());
        EXPECT_EQ(file.look(Patience::waits), Finding::unsettled);
        EXPECT_TRUE(files::exists(files::symlink_status(path())));
        EXPECT_EQ(file.look(Patience::acts), Finding::setAside);
        EXPECT_FALSE(files::exists(files::symlink_status(path())));
        EXPECT_EQ(log.takeLines(),
            std::vector{"ERROR [lifecycle] Preferences set aside as "
                + at("p.json.corrupt").string() + ": " + reason});
        EXPECT_EQ(file.look(Patience::acts), Finding::unchanged);
        EXPECT_TRUE(file.write(document(R"({"a":1})"), {"a"}));
        expectContent(R"({"a":1})");
    }

    TemporaryFolder folder;
    RecordedLog log;
};

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

TEST_F(PreferenceFileTest, isSetAsideWhenItIsNotJson)
{
    write(path(), "{\"a\":");
    expectSetAside("is not JSON");
    EXPECT_EQ(contentOf(at("p.json.corrupt")), "{\"a\":");
}

TEST_F(PreferenceFileTest, isSetAsideWhenItIsEmpty)
{
    write(path(), "");
    expectSetAside("is not JSON");
}

TEST_F(PreferenceFileTest, isSetAsideWhenItIsNoObject)
{
    write(path(), "[1]");
    expectSetAside("is not an object");
}

TEST_F(PreferenceFileTest, isSetAsideWhenItIsNestedTooDeeply)
{
    write(path(), "{\"a\":" + std::string(10'000, '['));
    expectSetAside("is nested too deeply");
}

TEST_F(PreferenceFileTest, isSetAsideWhenItIsTooLarge)
{
    write(path(), "{}");
    files::resize_file(path(), PreferenceFile::largestFile + 1);
    expectSetAside("is larger than 64 MiB");
}

TEST_F(PreferenceFileTest, isSetAsideWhenItIsAFolder)
{
    files::create_directory(path());
    write(path() / "kept", "kept");
    expectSetAside("is not a regular file");
    EXPECT_EQ(contentOf(at("p.json.corrupt/kept")), "kept");
}

TEST_F(PreferenceFileTest, isSetAsideWhenItIsAPipeWhichIsNotWaitedFor)
{
    ASSERT_EQ(::mkfifo(path().c_str(), 0600), 0);
    expectSetAside("is not a regular file");
}

TEST_F(PreferenceFileTest, isSetAsideWhenItIsALinkToItself)
{
    files::create_symlink("p.json", path());
    PreferenceFile file(path());
    EXPECT_EQ(file.look(Patience::acts), Finding::setAside);
    EXPECT_TRUE(files::is_symlink(at("p.json.corrupt")));
}

TEST_F(PreferenceFileTest, isSetAsideUnderANameOfItsOwn)
{
    write(at("p.json.corrupt"), "first");
    write(at("p.json.corrupt.2"), "second");
    write(path(), "third");
    PreferenceFile file(path());
    EXPECT_EQ(file.look(Patience::acts), Finding::setAside);
    EXPECT_EQ(contentOf(at("p.json.corrupt")), "first");
    EXPECT_EQ(contentOf(at("p.json.corrupt.2")), "second");
    EXPECT_EQ(contentOf(at("p.json.corrupt.3")), "third");
}

TEST_F(PreferenceFileTest, isSetAsideAndWrittenWholeWhenItGotDamagedMeanwhile)
{
    write(path(), R"({"a":1,"b":1})");
    PreferenceFile file(path());
    file.look(Patience::acts);
    write(path(), "damage");
    EXPECT_TRUE(file.write(document(R"({"a":1,"b":2})"), {"b"}));
    expectContent(R"({"a":1,"b":2})");
    EXPECT_EQ(contentOf(at("p.json.corrupt")), "damage");
    EXPECT_EQ(log.lines().size(), 1U);
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
    files::create_directory(at("closed"));
    write(at("closed/p.json"), R"({"a":1})");
    files::permissions(at("closed/p.json"), files::perms(0644));
    files::permissions(at("closed"), files::perms(0555));
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
    files::create_directory(at("closed"));
    write(at("closed/p.json"), "damage");
    files::permissions(at("closed/p.json"), files::perms(0644));
    files::permissions(at("closed"), files::perms(0555));
    {
        const OrdinaryUser user(folder.path());
        PreferenceFile file(at("closed/p.json"));
        EXPECT_EQ(file.look(Patience::acts), Finding::unreadable);
        EXPECT_FALSE(file.write(document(R"({"a":2})"), {"a"}));
        EXPECT_EQ(log.takeLines().size(), 1U);
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

TEST_F(PreferenceFileTest, survivesAnyBytes)
{
    std::uint32_t state = 1;
    const auto random = [&] { return state = state * 1'664'525 + 1'013'904'223; };
    const std::string whole = R"({"a":[1,"x",{"b":null}],"c":"\u00e9","d":1.5e3})";
    for (int round = 0; round < 2'000; ++round) {
        auto bytes = whole;
        for (auto changes = 1 + random() % 4; changes > 0; --changes)
            bytes[(random() >> 8) % bytes.size()] = static_cast<char>(random() >> 24);
        const auto parsed = parsePreferences(bytes);
        if (parsed) {
            EXPECT_TRUE(isSameDocument(document(preferencesText(*parsed)), *parsed)) << bytes;
        }
    }
}

} // namespace
} // namespace brindlex
