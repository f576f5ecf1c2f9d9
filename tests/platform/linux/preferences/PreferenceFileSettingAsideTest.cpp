#include "platform/linux/preferences/PreferenceFileFixture.h"

#include <sys/stat.h>

namespace brindlex {
namespace {

namespace files = std::filesystem;

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
    EXPECT_EQ(log.lines(),
        std::vector{asideLine(path().string() + ": Too many levels of symbolic links")});
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
    EXPECT_EQ(log.lines(), std::vector{asideLine("is not JSON")});
}

} // namespace
} // namespace brindlex
