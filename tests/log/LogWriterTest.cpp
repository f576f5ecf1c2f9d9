#include "log/LogWriterFixture.h"

#include <optional>
#include <vector>

namespace brindlex {
namespace {

namespace fs = std::filesystem;
using SystemEntries = std::vector<SimulatedSystemLog::Entry>;

TEST_F(LogWriterTest, writesEachCallToTheFileAndToTheSystemLog)
{
    writer->write(call("Brindlex launched", LogLevel::notice));
    queue.drain();

    EXPECT_EQ(content(),
        "2026-11-16T02:16:25.123Z NOTICE [lifecycle] Brindlex/AppLifecycleCoordinator:63 — "
        "Brindlex launched\n");
    EXPECT_EQ(systemLog.entries(),
        (SystemEntries{{SystemLogType::standard, "com.brindlex.Brindlex.app", "lifecycle",
            "Brindlex launched"}}));
}

TEST_F(LogWriterTest, givesEachLevelItsTypeInTheSystemLog)
{
    for (const auto level : {LogLevel::info, LogLevel::notice, LogLevel::warn, LogLevel::error})
        writer->write(call("m", level));
    queue.drain();

    const std::string subsystem = "com.brindlex.Brindlex.app";
    EXPECT_EQ(systemLog.entries(),
        (SystemEntries{{SystemLogType::info, subsystem, "lifecycle", "m"},
            {SystemLogType::standard, subsystem, "lifecycle", "m"},
            {SystemLogType::error, subsystem, "lifecycle", "m"},
            {SystemLogType::error, subsystem, "lifecycle", "m"}}));
    EXPECT_EQ(
        content(), line("m") + line("m", "NOTICE") + line("m", "WARN  ") + line("m", "ERROR "));
}

TEST_F(LogWriterTest, neverWritesTheLevelOfLinesThatCouldNotBeRead)
{
    writer->write(call("m", LogLevel::raw));
    queue.drain();

    EXPECT_FALSE(fs::exists(logs));
    EXPECT_EQ(systemLog.entries(), SystemEntries{});
}

TEST_F(LogWriterTest, hasAFileForEachSubsystem)
{
    writer->write(call("one", LogLevel::info, Log::Subsystem::app));
    writer->write(call("two", LogLevel::info, Log::Subsystem::finder));
    writer->write(call("three", LogLevel::info, Log::Subsystem::voice));
    writer->write(call("four", LogLevel::info, Log::Subsystem::app));
    queue.drain();

    EXPECT_EQ(content("com.brindlex.Brindlex.app.log"), line("one") + line("four"));
    EXPECT_EQ(content("com.brindlex.Brindlex.finder.log"), line("two"));
    EXPECT_EQ(content("com.brindlex.Brindlex.voice.log"), line("three"));
}

TEST_F(LogWriterTest, givesALineTheTimeOfItsCall)
{
    writer->write(call("one"));
    clock.advance(1);
    queue.drain();
    clock.setNow(launch - 3600.0);
    writer->write(call("an hour back"));
    queue.drain();

    EXPECT_EQ(content(),
        line("one")
            + "2026-11-16T01:16:25.123Z INFO   [lifecycle] "
              "Brindlex/AppLifecycleCoordinator:63 — an hour back\n");
}

TEST_F(LogWriterTest, returnsTheFileAndMakesItsFolder)
{
    EXPECT_EQ(writer->fileURL(Log::Subsystem::finder), logs / "com.brindlex.Brindlex.finder.log");
    EXPECT_TRUE(fs::is_directory(logs));

    container.setFolder({});
    EXPECT_EQ(writer->fileURL(Log::Subsystem::finder), std::nullopt);
}

TEST_F(LogWriterTest, writesToTheSystemLogAloneWhileThereIsNoContainer)
{
    container.setFolder({});
    writer->write(call("one"));
    queue.drain();
    EXPECT_TRUE(fs::is_empty(folder.path()));
    EXPECT_EQ(systemLog.entries().size(), 1u);

    container.setFolder(folder.path());
    writer->write(call("two"));
    queue.drain();
    EXPECT_EQ(content(), line("two"));
    EXPECT_EQ(systemLog.entries().size(), 2u);
}

TEST_F(LogWriterTest, makesItsFolderAgainWhenItWasRemoved)
{
    writer->write(call("one"));
    queue.drain();
    fs::remove_all(logs);
    writer->write(call("two"));
    queue.drain();

    EXPECT_EQ(content(), line("two"));
}

TEST_F(LogWriterTest, goesOnWhereAFileOrAFolderStandsInTheWay)
{
    write(logs, "a file instead of the folder");
    writer->write(call("lost"));
    queue.drain();
    EXPECT_EQ(contentOf(logs), "a file instead of the folder");

    fs::remove(logs);
    fs::create_directories(logs / "com.brindlex.Brindlex.app.log");
    writer->write(call("lost"));
    queue.drain();
    EXPECT_TRUE(fs::is_directory(logs / "com.brindlex.Brindlex.app.log"));

    fs::remove_all(logs);
    writer->write(call("written"));
    queue.drain();
    EXPECT_EQ(content(), line("written"));
    EXPECT_EQ(systemLog.entries().size(), 3u);
}

} // namespace
} // namespace brindlex
