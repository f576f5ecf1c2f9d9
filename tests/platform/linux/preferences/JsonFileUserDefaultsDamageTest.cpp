#include "platform/linux/preferences/JsonFileUserDefaultsFixture.h"

#include "support/basics/Eventually.h"
#include "support/basics/FileSizeLimit.h"
#include "support/basics/OrdinaryUser.h"
#include "support/processes/ChildProcess.h"

#include <chrono>
#include <csignal>

namespace brindlex {
namespace {

namespace files = std::filesystem;
using namespace std::chrono_literals;

TEST_F(JsonFileUserDefaultsTest, setsADamagedFileAsideAndBeginsAfresh)
{
    write(path(), "{\"mouseConfig\":");
    start();
    EXPECT_EQ(defaults->value("mouseConfig"), Value());
    EXPECT_EQ(log.takeLines(), std::vector{asideLine()});
    defaults->set("a", true);
    defaults->synchronize();
    EXPECT_EQ(valueInFile("a"), PreferenceValue(true));
    EXPECT_EQ(contentOf(aside()), "{\"mouseConfig\":");
}

TEST_F(JsonFileUserDefaultsTest, givesAnEditorASecondAlsoAtItsBeginningAndItsEnd)
{
    const auto duration = [](const std::function<void()>& work) {
        const auto before = std::chrono::steady_clock::now();
        work();
        return std::chrono::steady_clock::now() - before;
    };
    // The dates of files are those of the last tick of the system's clock.
    constexpr auto nearlyASecond = 950ms;
    write(path(), "{\"a\":");
    EXPECT_GE(duration([&] { start(); }), nearlyASecond);
    EXPECT_EQ(log.takeLines(), std::vector{asideLine()});

    files::remove(aside());
    write(path(), "{\"b\":");
    defaults->set("c", true);
    EXPECT_GE(duration([&] { defaults.reset(); }), nearlyASecond);
    EXPECT_EQ(log.takeLines(), std::vector{asideLine()});
    EXPECT_EQ(valueInFile("c"), PreferenceValue(true));
    EXPECT_EQ(contentOf(aside()), "{\"b\":");
}

TEST_F(JsonFileUserDefaultsTest, keepsItsValuesWhenTheFileGetsDamagedForGood)
{
    write(path(), R"({"a":1,"b":"x"})");
    start();
    write(path(), "damage");
    ASSERT_TRUE(runUntil([&] { return valueInFile("b") == PreferenceValue("x"); }));
    EXPECT_EQ(defaults->value("a"), PreferenceValue(std::int64_t{1}));
    EXPECT_EQ(valueInFile("a"), PreferenceValue(std::int64_t{1}));
    EXPECT_EQ(contentOf(aside()), "damage");
    EXPECT_EQ(log.lines(), std::vector{asideLine()});
}

TEST_F(JsonFileUserDefaultsTest, staysInMemoryWhenTheFileMayNotBeRead)
{
    write(path(), R"({"secret":1})");
    files::permissions(path(), files::perms::none);
    {
        const OrdinaryUser user(folder.path());
        start();
        defaults->set("a", true);
        EXPECT_EQ(defaults->value("a"), PreferenceValue(true));
        defaults->synchronize();
        EXPECT_EQ(defaults->value("a"), PreferenceValue(true));
        defaults.reset();
    }
    files::permissions(path(), files::perms::owner_all);
    EXPECT_EQ(contentOf(path()), R"({"secret":1})");
    EXPECT_EQ(log.lines(),
        std::vector{"ERROR [lifecycle] Preferences cannot be read and are not written: "
            + path().string() + ": Permission denied"});
}

TEST_F(JsonFileUserDefaultsTest, writesByItselfOnceAFullDiskHasRoom)
{
    write(path(), R"({"a":1})");
    start();
    const std::string large(10'000, 'x');
    {
        const FileSizeLimit limit(4'096);
        defaults->set("large", large);
        ASSERT_TRUE(runUntil([&] { return !log.lines().empty(); }));
        EXPECT_EQ(contentOf(path()), R"({"a":1})");
        EXPECT_EQ(defaults->value("large"), PreferenceValue(large));
    }
    EXPECT_TRUE(runUntil([&] { return valueInFile("large") == PreferenceValue(large); }));
    EXPECT_EQ(log.lines(),
        std::vector{"ERROR [lifecycle] Preferences cannot be written: " + path().string()
            + ": File too large"});
    EXPECT_EQ(valueInFile("a"), PreferenceValue(std::int64_t{1}));
}

TEST_F(JsonFileUserDefaultsTest, writesWithTheNextChangeAfterAFullDisk)
{
    start();
    {
        const FileSizeLimit limit(64);
        defaults->set("first", std::string(1'000, 'x'));
        ASSERT_TRUE(runUntil([&] { return !log.lines().empty(); }));
    }
    defaults->set("second", true);
    EXPECT_TRUE(runUntil([&] { return valueInFile("second") == PreferenceValue(true); }));
    EXPECT_EQ(valueInFile("first"), PreferenceValue(std::string(1'000, 'x')));
}

TEST_F(JsonFileUserDefaultsTest, goesOnWhereTheFolderCannotBeMade)
{
    write(folder.path() / "file", "x");
    {
        JsonFileUserDefaults impossible(folder.path() / "file/p.json", loop.mainThread(), queue);
        impossible.set("a", true);
        impossible.synchronize();
        EXPECT_EQ(impossible.value("a"), PreferenceValue(true));
    }
    EXPECT_EQ(log.lines(),
        std::vector{"ERROR [lifecycle] Preferences cannot be read and are not written: "
            + (folder.path() / "file/p.json").string() + ": Not a directory"});
}

TEST_F(JsonFileUserDefaultsTest, leavesAWholeFileWhenItsProcessIsKilled)
{
    for (int round = 0; round < 10; ++round) {
        const auto output = folder.path() / ("output" + std::to_string(round));
        ChildProcess child(
            {.command = {PLATFORM_PROCESS, "count", path(), "n", "1000000"}, .output = output});
        ASSERT_TRUE(eventually([&] { return child.output() == "counting\n"; }));
        // The moment of the kill moves through the time between two writes.
        const auto before = contentOf(path());
        ASSERT_TRUE(eventually([&] { return contentOf(path()) != before; }));
        throughout(7ms * round, [] { return true; });
        child.signal(SIGKILL);
        ASSERT_TRUE(child.waitForEnd(usualDeadline));
        EXPECT_TRUE(parsePreferences(contentOf(path()))) << contentOf(path());
    }
    start();
    EXPECT_TRUE(defaults->value("n"));
    EXPECT_EQ(log.lines(), std::vector<std::string>{});
    std::vector<std::string> others;
    for (const auto& entry : files::directory_iterator(folder.path()))
        if (!entry.path().filename().string().starts_with("output"))
            others.push_back(entry.path().filename());
    EXPECT_LE(others.size(), 2U) << "More than the file and what one killed process left.";
}

} // namespace
} // namespace brindlex
