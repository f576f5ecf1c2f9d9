#include "log/LogWriterFixture.h"

#include "platform/posix/SerialQueue.h"

#include <chrono>
#include <map>
#include <optional>
#include <sstream>
#include <thread>
#include <utility>
#include <vector>

namespace brindlex {
namespace {

namespace fs = std::filesystem;
using SystemEntries = std::vector<SimulatedSystemLog::Entry>;

TEST_F(LogWriterTest, touchesNothingDuringTheCall)
{
    writer->write(call("one"));
    writer->write(call("two"));

    EXPECT_FALSE(fs::exists(logs));
    EXPECT_EQ(systemLog.entries(), SystemEntries{});
    EXPECT_EQ(queue.waiting(), 1u);
    queue.drain();
    EXPECT_EQ(content(), line("one") + line("two"));
}

TEST_F(LogWriterTest, doesNotEndBeforeItsLinesAreWritten)
{
    writer->write(call("last words"));
    writer.reset();
    queue.drain();

    EXPECT_EQ(content(), line("last words"));
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

/// A container that logs while the writer asks for it.
class LoggingContainer : public AppGroupContainer {
public:
    std::optional<fs::path> appGroupContainerURL() override
    {
        if (!std::exchange(hasLogged, true))
            writer.lock()->write(LogWriterTest::call("from inside", LogLevel::error));
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
