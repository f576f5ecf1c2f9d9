#include "platform/linux/preferences/JsonFileUserDefaultsFixture.h"

#include "support/processes/ChildProcess.h"

#include <memory>
#include <utility>
#include <vector>

namespace brindlex {
namespace {

namespace files = std::filesystem;

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

TEST_F(JsonFileUserDefaultsTest, noticesThatASymbolicLinkLeadsElsewhereAndWhatIsWrittenThere)
{
    const auto first = folder.path() / "first";
    const auto second = folder.path() / "second";
    for (const auto& [place, value] : {std::pair{first, "1"}, std::pair{second, "2"}}) {
        files::create_directory(place);
        write(place / "real.json", std::string("{\"a\":") + value + "}");
    }
    // Not only the file itself, but also a link on the way to it may be changed.
    const auto onTheWay = first / "link.json";
    files::create_symlink("real.json", onTheWay);
    files::create_symlink(onTheWay, path());
    start();
    ASSERT_EQ(defaults->value("a"), PreferenceValue(std::int64_t{1}));

    files::create_symlink(second / "real.json", folder.path() / "new");
    files::rename(folder.path() / "new", onTheWay);
    EXPECT_TRUE(runUntil([&] { return defaults->value("a") == PreferenceValue(std::int64_t{2}); }));
    write(second / "real.json", R"({"a":3})");
    EXPECT_TRUE(runUntil([&] { return defaults->value("a") == PreferenceValue(std::int64_t{3}); }));

    defaults->set("b", true);
    ASSERT_TRUE(runUntil([&] { return valueInFile("b") == PreferenceValue(true); }));
    EXPECT_TRUE(files::is_symlink(path()));
    EXPECT_TRUE(files::is_symlink(onTheWay));
    EXPECT_EQ(contentOf(first / "real.json"), "{\"a\":1}");
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

TEST_F(JsonFileUserDefaultsTest, waitsForAnEditorAlsoWithSomethingOfItsOwnToWrite)
{
    write(path(), R"({"a":1})");
    start();
    write(path(), "{\"a\":");
    defaults->set("b", true);
    loop.runFor(0.5);
    EXPECT_EQ(contentOf(path()), "{\"a\":");
    write(path(), R"({"a":2})");
    EXPECT_TRUE(runUntil([&] { return valueInFile("b") == PreferenceValue(true); }));
    EXPECT_EQ(valueInFile("a"), PreferenceValue(std::int64_t{2}));
    EXPECT_TRUE(runUntil([&] { return defaults->value("a") == PreferenceValue(std::int64_t{2}); }));
    EXPECT_EQ(log.lines(), std::vector<std::string>{});
}

TEST_F(JsonFileUserDefaultsTest, takesARemovedFileForEmpty)
{
    write(path(), R"({"a":1})");
    start();
    int notifications = 0;
    const auto subscription = defaults->observeChanges([&] { ++notifications; });
    files::remove(path());
    EXPECT_TRUE(runUntil([&] { return !defaults->value("a"); }));
    EXPECT_EQ(notifications, 1);
    loop.runFor(0.1);
    EXPECT_FALSE(files::exists(path()));
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

TEST_F(JsonFileUserDefaultsTest, notifiesNobodyAtItsEnd)
{
    start();
    int notifications = 0;
    const auto subscription = defaults->observeChanges([&] { ++notifications; });
    defaults->set("a", true);
    write(path(), R"({"b":true})");
    defaults.reset();
    EXPECT_EQ(notifications, 1);
    EXPECT_EQ(valueInFile("a"), PreferenceValue(true));
    EXPECT_EQ(valueInFile("b"), PreferenceValue(true));
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

} // namespace
} // namespace brindlex
