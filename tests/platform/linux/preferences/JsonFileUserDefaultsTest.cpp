#include "platform/linux/preferences/JsonFileUserDefaultsFixture.h"

#include "platform/linux/files/FolderWatcher.h"
#include "platform/simulated/SimulatedQueue.h"

#include <set>
#include <sys/stat.h>

namespace brindlex {
namespace {

namespace files = std::filesystem;

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

TEST_F(JsonFileUserDefaultsTest, keepsValuesOfUnknownKindsInTheFile)
{
    write(path(), R"({"nested":{"a":[null,1]},"mixed":[1,"x"],"nothing":null})");
    start();
    EXPECT_EQ(defaults->value("nested"), PreferenceValue(PreferenceJson{R"({"a":[null,1]})"}));
    EXPECT_EQ(defaults->value("mixed"), PreferenceValue(PreferenceJson{R"([1,"x"])"}));
    EXPECT_EQ(defaults->value("nothing"), PreferenceValue(PreferenceJson{"null"}));
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

} // namespace
} // namespace brindlex
