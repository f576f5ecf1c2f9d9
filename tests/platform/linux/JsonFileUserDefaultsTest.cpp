#include "platform/linux/JsonFileUserDefaults.h"

#include "platform/posix/SerialQueue.h"
#include "platform/simulated/SimulatedQueue.h"
#include "support/ChildProcess.h"
#include "support/Eventually.h"
#include "support/FileSizeLimit.h"
#include "support/OrdinaryUser.h"
#include "support/QtLoop.h"
#include "support/RecordedLog.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <set>
#include <sys/stat.h>

namespace brindlex {
namespace {

namespace files = std::filesystem;
using namespace std::chrono_literals;
using Value = std::optional<PreferenceValue>;

class JsonFileUserDefaultsTest : public testing::Test {
protected:
    files::path path() const { return folder.path() / "com.brindlex.Brindlex.json"; }
    files::path aside() const { return folder.path() / "com.brindlex.Brindlex.json.corrupt"; }

    void start() { defaults.emplace(path(), loop.mainThread(), queue); }

    Value valueInFile(const std::string& key) const
    {
        const auto document = parsePreferences(contentOf(path()));
        const auto value = document ? plainValue(*document, key) : nullptr;
        return value ? Value(*value) : std::nullopt;
    }

    bool runUntil(const std::function<bool()>& condition) { return loop.runUntil(condition); }

    TemporaryFolder folder;
    RecordedLog log;
    QtLoop loop;
    SerialQueue queue{"preferences"};
    std::optional<JsonFileUserDefaults> defaults;
};

TEST_F(JsonFileUserDefaultsTest, writesNothingAsLongAsNothingIsSet)
{
    start();
    loop.runFor(0.1);
    defaults.reset();
    EXPECT_FALSE(files::exists(path()));
}

TEST_F(JsonFileUserDefaultsTest, writesABurstOfChangesOnce)
{
    start();
    // Each write makes a new file.
    std::set<ino_t> written;
    const FolderWatcher watcher(folder.path(), [&](const std::string&) {
        struct stat status = {};
        if (::stat(path().c_str(), &status) == 0)
            written.insert(status.st_ino);
    });
    for (std::int64_t number = 1; number <= 500; ++number)
        defaults->set("key" + std::to_string(number % 7), number);
    ASSERT_TRUE(
        runUntil([&] { return valueInFile("key3") == PreferenceValue(std::int64_t{500}); }));
    loop.runFor(0.15);
    EXPECT_EQ(written.size(), 1U);
}

TEST_F(JsonFileUserDefaultsTest, readsAFileThatAPersonHasWritten)
{
    write(path(), "\xEF\xBB\xBF { \"launchAtLogin\" : true }\r\n");
    start();
    EXPECT_EQ(defaults->value("launchAtLogin"), PreferenceValue(true));
    EXPECT_EQ(log.lines(), std::vector<std::string>{});
}

TEST_F(JsonFileUserDefaultsTest, noticesAFileThatIsReplacedWrittenInPlaceOrNew)
{
    start();
    write(path(), R"({"a":1})");
    EXPECT_TRUE(runUntil([&] { return defaults->value("a") == PreferenceValue(std::int64_t{1}); }));
    write(folder.path() / "editor", R"({"a":2})");
    files::rename(folder.path() / "editor", path());
    EXPECT_TRUE(runUntil([&] { return defaults->value("a") == PreferenceValue(std::int64_t{2}); }));
    write(path(), R"({"a":3})");
    EXPECT_TRUE(runUntil([&] { return defaults->value("a") == PreferenceValue(std::int64_t{3}); }));
    EXPECT_EQ(log.lines(), std::vector<std::string>{});
}

TEST_F(JsonFileUserDefaultsTest, noticesAChangeBehindASymbolicLink)
{
    files::create_directory(folder.path() / "dotfiles");
    const auto target = folder.path() / "dotfiles/real.json";
    write(target, R"({"a":1})");
    files::create_symlink(target, path());
    start();
    write(target, R"({"a":2})");
    EXPECT_TRUE(runUntil([&] { return defaults->value("a") == PreferenceValue(std::int64_t{2}); }));
}

TEST_F(JsonFileUserDefaultsTest, keepsValuesOfUnknownKindsInTheFile)
{
    write(path(), R"({"nested":{"a":[null,1]},"mixed":[1,"x"],"nothing":null})");
    start();
    for (const auto key : {"nested", "mixed", "nothing"})
        EXPECT_EQ(defaults->value(key), Value()) << key;
    defaults->set("mine", true);
    defaults->synchronize();
    const auto written = parseSortedJson(contentOf(path())).value();
    EXPECT_EQ(written,
        parseSortedJson(R"({"nested":{"a":[null,1]},"mixed":[1,"x"],"nothing":null,"mine":true})")
            .value());
}

TEST_F(JsonFileUserDefaultsTest, removesAndReplacesValuesOfUnknownKinds)
{
    write(path(), R"({"nested":{},"mixed":[1,"x"]})");
    start();
    defaults->set("nested", {});
    defaults->set("mixed", std::string("text"));
    defaults->synchronize();
    EXPECT_EQ(
        parseSortedJson(contentOf(path())).value(), parseSortedJson(R"({"mixed":"text"})").value());
}

TEST_F(JsonFileUserDefaultsTest, setsADamagedFileAsideAndBeginsAfresh)
{
    write(path(), "{\"mouseConfig\":");
    start();
    EXPECT_EQ(defaults->value("mouseConfig"), Value());
    EXPECT_EQ(log.takeLines(),
        std::vector{
            "ERROR [lifecycle] Preferences set aside as " + aside().string() + ": is not JSON"});
    defaults->set("a", true);
    defaults->synchronize();
    EXPECT_EQ(valueInFile("a"), PreferenceValue(true));
    EXPECT_EQ(contentOf(aside()), "{\"mouseConfig\":");
}

TEST_F(JsonFileUserDefaultsTest, waitsForAnEditorThatIsInTheMiddleOfWriting)
{
    write(path(), R"({"a":1})");
    start();
    write(path(), "{\"a\":");
    loop.runFor(0.2);
    EXPECT_EQ(defaults->value("a"), PreferenceValue(std::int64_t{1}));
    write(path(), R"({"a":2})");
    EXPECT_TRUE(runUntil([&] { return defaults->value("a") == PreferenceValue(std::int64_t{2}); }));
    loop.runFor(1.2);
    EXPECT_FALSE(files::exists(aside()));
    EXPECT_EQ(log.lines(), std::vector<std::string>{});
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
    EXPECT_EQ(log.lines().size(), 1U);
}

TEST_F(JsonFileUserDefaultsTest, takesARemovedFileForEmpty)
{
    write(path(), R"({"a":1})");
    start();
    int told = 0;
    const auto subscription = defaults->observeChanges([&] { ++told; });
    files::remove(path());
    EXPECT_TRUE(runUntil([&] { return !defaults->value("a"); }));
    EXPECT_EQ(told, 1);
    loop.runFor(0.1);
    EXPECT_FALSE(files::exists(path()));
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
    EXPECT_EQ(log.lines().size(), 1U);
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

TEST_F(JsonFileUserDefaultsTest, takesTextThatIsNotText)
{
    start();
    defaults->set("text", std::string("a\xFF\0z", 4));
    defaults->set("texts", std::vector<std::string>{"\xC3", "ok"});
    const PreferenceValue text(std::string("a\xEF\xBF\xBD\0z", 6));
    EXPECT_EQ(defaults->value("text"), text);
    defaults->synchronize();
    EXPECT_EQ(defaults->value("text"), text);
    EXPECT_EQ(valueInFile("text"), text);
    EXPECT_EQ(
        valueInFile("texts"), PreferenceValue(std::vector<std::string>{"\xEF\xBF\xBD", "ok"}));
}

TEST_F(JsonFileUserDefaultsTest, writesOnItsQueueAlone)
{
    SimulatedQueue stopped;
    JsonFileUserDefaults waiting(path(), loop.mainThread(), stopped);
    waiting.set("a", true);
    ASSERT_TRUE(runUntil([&] { return stopped.waiting() > 0; }));
    EXPECT_FALSE(files::exists(path()));
    EXPECT_EQ(waiting.value("a"), PreferenceValue(true));
    stopped.drain();
    EXPECT_EQ(valueInFile("a"), PreferenceValue(true));
}

TEST_F(JsonFileUserDefaultsTest, takesAFileOfTenMegabytes)
{
    write(path(), "{\"large\":\"" + std::string(10'000'000, 'x') + "\"}");
    start();
    defaults->set("a", true);
    defaults->synchronize();
    EXPECT_EQ(valueInFile("a"), PreferenceValue(true));
    EXPECT_EQ(std::get<std::string>(*defaults->value("large")).size(), 10'000'000U);
}

TEST_F(JsonFileUserDefaultsTest, ownsTheFolderItNeeds)
{
    JsonFileUserDefaults deep(folder.path() / "new/config/p.json", loop.mainThread(), queue);
    deep.set("a", true);
    deep.synchronize();
    EXPECT_EQ(contentOf(folder.path() / "new/config/p.json"), "{\n  \"a\": true\n}\n");
}

TEST_F(JsonFileUserDefaultsTest, noticesChangesInAFolderThatWasRemovedAndMadeAnew)
{
    const auto file = folder.path() / "config/p.json";
    JsonFileUserDefaults removed(file, loop.mainThread(), queue);
    removed.set("a", true);
    removed.synchronize();
    files::remove_all(folder.path() / "config");
    ASSERT_TRUE(runUntil([&] { return !removed.value("a"); }));
    removed.set("b", true);
    ASSERT_TRUE(runUntil([&] { return files::exists(file); }));
    removed.synchronize();
    write(file, R"({"c":true})");
    EXPECT_TRUE(runUntil([&] { return removed.value("c") == PreferenceValue(true); }));
}

TEST_F(JsonFileUserDefaultsTest, tellsNobodyAtItsEnd)
{
    start();
    int told = 0;
    const auto subscription = defaults->observeChanges([&] { ++told; });
    defaults->set("a", true);
    write(path(), R"({"b":true})");
    defaults.reset();
    EXPECT_EQ(told, 1);
    EXPECT_EQ(valueInFile("a"), PreferenceValue(true));
    EXPECT_EQ(valueInFile("b"), PreferenceValue(true));
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
    EXPECT_EQ(log.lines().size(), 1U);
}

TEST_F(JsonFileUserDefaultsTest, losesNothingOfTwoProcessesThatWriteAtTheSameTime)
{
    start();
    std::vector<std::unique_ptr<ChildProcess>> children;
    for (const std::string name : {"first", "second"})
        children.push_back(std::make_unique<ChildProcess>(
            ChildProcess::Start{.command = {PLATFORM_PROCESS, "count", path(), name, "300"}}));
    std::int64_t mine = 0;
    const auto counting = loop.mainThread().every(0.003, [&] {
        if (mine < 100)
            defaults->set("mine", ++mine);
    });
    const auto isOver
        = [&] { return !children[0]->isRunning() && !children[1]->isRunning() && mine == 100; };
    ASSERT_TRUE(runUntil(isOver) || runUntil(isOver));
    defaults->synchronize();
    EXPECT_EQ(valueInFile("first"), PreferenceValue(std::int64_t{300}));
    EXPECT_EQ(valueInFile("second"), PreferenceValue(std::int64_t{300}));
    EXPECT_EQ(valueInFile("mine"), PreferenceValue(std::int64_t{100}));
    EXPECT_EQ(defaults->value("first"), PreferenceValue(std::int64_t{300}));
    EXPECT_EQ(log.lines(), std::vector<std::string>{});
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
