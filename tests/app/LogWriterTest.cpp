#include "app/LogWriter.h"

#include "platform/posix/PosixClock.h"
#include "platform/posix/SerialQueue.h"
#include "platform/simulated/SimulatedAppGroupContainer.h"
#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedQueue.h"
#include "platform/simulated/SimulatedSystemLog.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <map>
#include <sstream>
#include <thread>

namespace brindlex {
namespace {

namespace fs = std::filesystem;
using Entry = SimulatedSystemLog::Entry;
using Entries = std::vector<Entry>;

constexpr Date launch = Date::fromUnixTime(1'794'795'385.123);
constexpr CallSite site{"src/app/AppLifecycleCoordinator.cpp", 63};

LogCall call(std::string_view message, LogLevel level = LogLevel::info,
    Log::Subsystem subsystem = Log::Subsystem::app)
{
    return {level, subsystem, logCategory::lifecycle, message, site};
}

std::string line(const std::string& message, const std::string& level = "INFO  ")
{
    return "2026-11-16T02:16:25.123Z " + level
        + " [lifecycle] Brindlex/AppLifecycleCoordinator:63 — " + message + "\n";
}

class LogWriterTest : public testing::Test {
protected:
    std::string content(const std::string& name = "com.brindlex.Brindlex.app.log") const
    {
        return contentOf(logs / name);
    }

    void makeOld(const std::string& name) const
    {
        write(logs / name, "old");
        fs::last_write_time(logs / name,
            fs::file_time_type::clock::from_sys(
                std::chrono::sys_seconds(std::chrono::seconds(1'000'000'000))));
    }

    TemporaryFolder folder;
    fs::path logs = folder.path() / "Logs";
    SimulatedAppGroupContainer container{folder.path()};
    SimulatedSystemLog systemLog;
    SimulatedClock clock{launch};
    SimulatedQueue queue;
    std::shared_ptr<LogWriter> writer
        = std::make_shared<LogWriter>(queue, container, systemLog, clock);
};

TEST_F(LogWriterTest, writesEachCallToTheFileAndToTheSystemLog)
{
    writer->write(call("Brindlex launched", LogLevel::notice));
    queue.drain();

    EXPECT_EQ(content(),
        "2026-11-16T02:16:25.123Z NOTICE [lifecycle] Brindlex/AppLifecycleCoordinator:63 — "
        "Brindlex launched\n");
    EXPECT_EQ(systemLog.entries(),
        (Entries{{SystemLogType::standard, "com.brindlex.Brindlex.app", "lifecycle",
            "Brindlex launched"}}));
}

TEST_F(LogWriterTest, givesEachLevelItsTypeInTheSystemLog)
{
    for (const auto level : {LogLevel::info, LogLevel::notice, LogLevel::warn, LogLevel::error})
        writer->write(call("m", level));
    queue.drain();

    const std::string subsystem = "com.brindlex.Brindlex.app";
    EXPECT_EQ(systemLog.entries(),
        (Entries{{SystemLogType::info, subsystem, "lifecycle", "m"},
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
    EXPECT_EQ(systemLog.entries(), Entries{});
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

TEST_F(LogWriterTest, touchesNothingDuringTheCall)
{
    writer->write(call("one"));
    writer->write(call("two"));

    EXPECT_FALSE(fs::exists(logs));
    EXPECT_EQ(systemLog.entries(), Entries{});
    EXPECT_EQ(queue.waiting(), 1u);
    queue.drain();
    EXPECT_EQ(content(), line("one") + line("two"));
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

TEST_F(LogWriterTest, answersWithTheFileAndMakesItsFolder)
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

TEST_F(LogWriterTest, prunesBeforeALineAndAtMostOnceAnHour)
{
    fs::create_directory(logs);
    makeOld("a.log.3");
    makeOld("notes.txt");
    writer->write(call("one"));
    queue.drain();
    EXPECT_FALSE(fs::exists(logs / "a.log.3"));
    EXPECT_TRUE(fs::exists(logs / "notes.txt"));

    makeOld("b.log");
    clock.advance(3599.999);
    writer->write(call("two"));
    queue.drain();
    EXPECT_TRUE(fs::exists(logs / "b.log"));

    clock.setNow(launch + 3600.0);
    writer->write(call("three"));
    queue.drain();
    EXPECT_FALSE(fs::exists(logs / "b.log"));
}

TEST_F(LogWriterTest, beginsACurrentFileAfreshThatWasUntouchedForThirtyDays)
{
    fs::create_directory(logs);
    makeOld("com.brindlex.Brindlex.app.log");

    writer->write(call("one"));
    queue.drain();

    EXPECT_EQ(content(), line("one"));
}

TEST_F(LogWriterTest, prunesWhenToldAndThenNotForAnHourOfLines)
{
    fs::create_directory(logs);
    makeOld("a.log");
    writer->prune(launch);
    queue.drain();
    EXPECT_FALSE(fs::exists(logs / "a.log"));

    makeOld("b.log");
    writer->write(call("one"));
    queue.drain();
    EXPECT_TRUE(fs::exists(logs / "b.log"));
}

TEST_F(LogWriterTest, rotatesBeforeALineThatFindsTheFileAtItsLimit)
{
    fs::create_directory(logs);
    const auto file = logs / "com.brindlex.Brindlex.app.log";
    write(file, "");
    fs::resize_file(file, 52'428'799);
    writer->write(call("old"));
    writer->write(call("new"));
    queue.drain();

    EXPECT_EQ(content(), line("new"));
    EXPECT_EQ(
        fs::file_size(logs / "com.brindlex.Brindlex.app.log.1"), 52'428'799 + line("old").size());
}

TEST_F(LogWriterTest, dropsAndCountsWhatAFloodHasTooMuch)
{
    const std::string megabyte(1024 * 1024, 'm');
    for (int count = 0; count < 40; ++count)
        writer->write(call(megabyte));
    EXPECT_EQ(queue.waiting(), 1u);
    queue.drain();
    writer->write(call("afterwards"));
    queue.drain();

    // 32 MiB hold 31 lines of 1 MiB and their heads.
    EXPECT_EQ(systemLog.entries().size(), 33u);
    const auto text = content();
    const auto tail = text.substr(text.find("WARN  "));
    EXPECT_TRUE(tail.starts_with("WARN   [lifecycle] Brindlex/LogBacklog:")) << tail;
    EXPECT_NE(tail.find(" — Log lines dropped, as they came faster than they could be written: "
                        "9\n"),
        std::string::npos)
        << tail;
    EXPECT_TRUE(tail.ends_with(line("afterwards"))) << tail;
}

TEST_F(LogWriterTest, takesALineOfAnySizeWhenNothingElseWaits)
{
    const std::string huge(40 * 1024 * 1024, 'h');
    writer->write(call(huge));
    queue.drain();

    EXPECT_EQ(fs::file_size(logs / "com.brindlex.Brindlex.app.log"), line(huge).size());
}

TEST_F(LogWriterTest, doesNotEndBeforeItsLinesAreWritten)
{
    writer->write(call("last words"));
    writer.reset();
    queue.drain();

    EXPECT_EQ(content(), line("last words"));
}

/// A container that logs while the writer asks for it.
class LoggingContainer : public AppGroupContainer {
public:
    std::optional<fs::path> appGroupContainerURL() override
    {
        if (!std::exchange(hasLogged, true))
            writer.lock()->write(call("from inside", LogLevel::error));
        return folder;
    }
    fs::path folder;
    std::weak_ptr<LogWriter> writer;
    bool hasLogged = false;
};

TEST_F(LogWriterTest, takesALineFromInsideItsOwnWork)
{
    for (const auto mode : {SimulatedQueue::Mode::whenTold, SimulatedQueue::Mode::atOnce}) {
        TemporaryFolder ownFolder;
        SimulatedQueue ownQueue(mode);
        LoggingContainer logging;
        logging.folder = ownFolder.path();
        const auto own = std::make_shared<LogWriter>(ownQueue, logging, systemLog, clock);
        logging.writer = own;

        own->write(call("outer"));
        own->drain();

        EXPECT_EQ(contentOf(ownFolder.path() / "Logs" / "com.brindlex.Brindlex.app.log"),
            line("outer") + line("from inside", "ERROR "));
    }
}

TEST_F(LogWriterTest, keepsTheOrderOfEachOfManyThreads)
{
    constexpr int threadCount = 8;
    constexpr int linesEach = 2'000;
    SerialQueue realQueue("Brindlex.Log.file", std::chrono::milliseconds(1));
    const auto own = std::make_shared<LogWriter>(realQueue, container, systemLog, clock);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threadCount; ++thread)
        threads.emplace_back([&, thread] {
            for (int number = 0; number < linesEach; ++number)
                own->write(call(std::to_string(thread) + " " + std::to_string(number)));
        });
    for (auto& thread : threads)
        thread.join();
    own->drain();

    std::istringstream lines(content());
    std::map<int, int> next;
    for (std::string text; std::getline(lines, text);) {
        std::istringstream message(text.substr(text.find(" — ") + 5));
        int thread = -1;
        int number = -1;
        message >> thread >> number;
        ASSERT_EQ(number, next[thread]++) << text;
    }
    EXPECT_EQ(next.size(), static_cast<std::size_t>(threadCount));
    for (const auto& [thread, count] : next)
        EXPECT_EQ(count, linesEach) << thread;
    EXPECT_EQ(systemLog.entries().size(), static_cast<std::size_t>(threadCount * linesEach));
}

TEST_F(LogWriterTest, hasWrittenWhatWasLoggedBeforeADrain)
{
    SerialQueue realQueue("Brindlex.Log.file", std::chrono::hours(1));
    const auto own = std::make_shared<LogWriter>(realQueue, container, systemLog, clock);
    std::string expected;
    for (int round = 0; round < 50; ++round) {
        own->write(call(std::to_string(round)));
        own->drain();
        expected += line(std::to_string(round));
        ASSERT_EQ(content(), expected);
    }
}

TEST_F(LogWriterTest, survivesBeingExchangedWhileOthersLog)
{
    SerialQueue realQueue("Brindlex.Log.file");
    const auto before
        = Log::install(std::make_shared<LogWriter>(realQueue, container, systemLog, clock));
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread)
        threads.emplace_back([] {
            for (int number = 0; number < 1'000; ++number)
                Log::info("m", logCategory::ui);
        });
    for (int exchange = 0; exchange < 50; ++exchange)
        Log::install(std::make_shared<LogWriter>(realQueue, container, systemLog, clock));
    for (auto& thread : threads)
        thread.join();
    Log::install(before);
    realQueue.drain();

    EXPECT_EQ(systemLog.entries().size(), 4'000u);
}

} // namespace
} // namespace brindlex
