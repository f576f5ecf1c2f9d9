#include "logviewer/LogReader.h"

#include "platform/simulated/SimulatedMainThread.h"
#include "support/basics/RecordedLog.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace brindlex {
namespace {

namespace fs = std::filesystem;
using LogTexts = std::vector<std::string>;

class LogReaderTest : public testing::Test {
protected:
    LogReaderTest() { log.setFolder(folder.path()); }

    void append(const std::string& text) const
    {
        std::ofstream(file, std::ios::app | std::ios::binary) << text;
    }

    LogTexts messages() const
    {
        LogTexts found;
        for (const auto& entry : reader.entries().value())
            found.push_back(entry.message);
        return found;
    }

    LogTexts ids() const
    {
        LogTexts found;
        for (const auto& entry : reader.entries().value())
            found.push_back(entry.id);
        return found;
    }

    void tick() { mainThread.advance(1.0); }

    RecordedLog log;
    TemporaryFolder folder;
    const fs::path file = folder.path() / "com.brindlex.Brindlex.app.log";
    SimulatedClock clock;
    SimulatedMainThread mainThread{clock};
    const StringCatalogue strings{"en", {}};
    LogReader reader{Log::Subsystem::app, mainThread, strings};
};

TEST_F(LogReaderTest, readsWhatIsThereAndThenWhatIsAdded)
{
    append("one\ntwo\n");
    reader.start();
    EXPECT_EQ(messages(), (LogTexts{"one", "two"}));
    EXPECT_EQ(ids(), (LogTexts{"com.brindlex.Brindlex.app#1", "com.brindlex.Brindlex.app#2"}));
    EXPECT_EQ(reader.fileByteSize().value(), 8U);

    append("three\n");
    mainThread.advance(0.999);
    EXPECT_EQ(messages().size(), 2U);
    mainThread.advance(0.001);

    EXPECT_EQ(messages(), (LogTexts{"one", "two", "three"}));
    EXPECT_EQ(ids().back(), "com.brindlex.Brindlex.app#3");
    EXPECT_EQ(reader.fileByteSize().value(), 14U);
}

TEST_F(LogReaderTest, startsOnceAndReadsNothingOnceItIsStopped)
{
    append("one\n");
    reader.start();
    append("two\n");
    reader.start();
    EXPECT_EQ(messages(), LogTexts{"one"}) << "The second start does nothing.";
    EXPECT_EQ(mainThread.timers(), 1U);

    reader.stop();
    tick();

    EXPECT_EQ(messages(), LogTexts{"one"});
    EXPECT_EQ(mainThread.timers(), 0U);
}

TEST_F(LogReaderTest, showsALineOnceItIsComplete)
{
    append("one\ntw");
    reader.start();
    EXPECT_EQ(messages(), LogTexts{"one"});

    append("o");
    tick();
    EXPECT_EQ(messages(), LogTexts{"one"});
    append("\n");
    tick();

    EXPECT_EQ(messages(), (LogTexts{"one", "two"}));
}

TEST_F(LogReaderTest, startsOverWithAShorterFile)
{
    append("one\ntwo\n");
    reader.start();
    fs::rename(file, folder.path() / "com.brindlex.Brindlex.app.log.1");
    append("new\n");
    tick();

    EXPECT_EQ(messages(), LogTexts{"new"});
    EXPECT_EQ(ids(), LogTexts{"com.brindlex.Brindlex.app#1"});
}

TEST_F(LogReaderTest, takesAFileThatHasGrownPastTheOffsetForAContinuation)
{
    append("one\n");
    reader.start();
    fs::remove(file);
    append("a new line\n");
    tick();

    EXPECT_EQ(messages(), (LogTexts{"one", "w line"}));
}

TEST_F(LogReaderTest, isEmptyWithoutAFileAndFollowsOneThatComes)
{
    reader.start();
    EXPECT_EQ(messages(), LogTexts{});
    EXPECT_EQ(reader.loadError().value(), std::nullopt);

    append("one\n");
    tick();
    EXPECT_EQ(messages(), LogTexts{"one"});
    fs::remove(file);
    tick();

    EXPECT_EQ(messages(), LogTexts{});
    EXPECT_EQ(reader.fileByteSize().value(), 0U);
    append("two\n");
    tick();
    EXPECT_EQ(ids(), LogTexts{"com.brindlex.Brindlex.app#1"});
}

TEST_F(LogReaderTest, keepsTheNewestFiveThousandEntries)
{
    std::string lines;
    for (int number = 1; number <= 5'000; ++number)
        lines += std::to_string(number) + "\n";
    append(lines);
    reader.start();
    EXPECT_EQ(messages().size(), 5'000U);
    EXPECT_EQ(messages().front(), "1");

    append("5001\n");
    tick();

    EXPECT_EQ(messages().size(), 5'000U);
    EXPECT_EQ(messages().front(), "2");
    EXPECT_EQ(messages().back(), "5001");
    EXPECT_EQ(ids().back(), "com.brindlex.Brindlex.app#5001");
    append(lines + lines);
    tick();
    EXPECT_EQ(ids().front(), "com.brindlex.Brindlex.app#10002");
    EXPECT_EQ(ids().back(), "com.brindlex.Brindlex.app#15001");
}

TEST_F(LogReaderTest, hasAnEntryForEachLineOfAMessage)
{
    append("2026-11-16T02:16:25.123Z ERROR  [ui] Brindlex/A:1 — first\n  second\n");
    reader.start();

    const auto& entries = reader.entries().value();
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].level, LogLevel::error);
    EXPECT_EQ(entries[1].level, LogLevel::raw);
    EXPECT_EQ(entries[1].message, "  second");
}

TEST_F(LogReaderTest, skipsWhatIsNotTextAndGoesOnBehindIt)
{
    append("one\n\xFF\n");
    reader.start();
    EXPECT_EQ(messages(), LogTexts{});

    append("two\n");
    tick();

    EXPECT_EQ(messages(), LogTexts{"two"});
}

TEST_F(LogReaderTest, saysThatThereIsNoContainerUntilThereIsOne)
{
    {
        RecordedLog withoutContainer;
        reader.start();
        EXPECT_EQ(reader.loadError().value(), "App Group container unavailable");
        tick();
        EXPECT_EQ(withoutContainer.lines(), LogTexts{}) << "No failure is logged.";
    }
    append("one\n");
    tick();

    EXPECT_EQ(reader.loadError().value(), std::nullopt);
    EXPECT_EQ(messages(), LogTexts{"one"});
}

TEST_F(LogReaderTest, saysWhyTheFileCannotBeRead)
{
    append("one\n");
    reader.start();
    fs::remove(file);
    fs::create_directory(file);
    tick();
    EXPECT_EQ(messages(), LogTexts{});
    EXPECT_EQ(reader.loadError().value(), "Failed to read log: Is not a regular file");
    reader.reload();
    EXPECT_EQ(reader.loadError().value(), "Failed to read log: Is not a regular file");

    fs::remove(file);
    append("two\n");
    tick();

    EXPECT_EQ(reader.loadError().value(), std::nullopt);
    EXPECT_EQ(messages(), LogTexts{"two"});
    EXPECT_EQ(log.lines(), LogTexts{});
}

TEST_F(LogReaderTest, emptiesTheFile)
{
    append("one\n");
    reader.start();

    reader.clear();

    EXPECT_EQ(contentOf(file), "");
    EXPECT_EQ(messages(), LogTexts{});
    EXPECT_EQ(reader.loadError().value(), std::nullopt);
    append("two\n");
    tick();
    EXPECT_EQ(messages(), LogTexts{"two"});
}

TEST_F(LogReaderTest, saysWhyTheFileCannotBeEmptied)
{
    fs::create_directory(file);

    reader.clear();

    EXPECT_EQ(reader.loadError().value(), "Failed to clear log: Is a directory");
}

TEST_F(LogReaderTest, readsFromTheStartAgain)
{
    append("one\n");
    reader.start();
    append("two\n");

    reader.reload();

    EXPECT_EQ(ids(), (LogTexts{"com.brindlex.Brindlex.app#1", "com.brindlex.Brindlex.app#2"}));
}

TEST_F(LogReaderTest, notifiesOfNothingWhileNothingChanges)
{
    append("one\n");
    reader.start();
    int notifications = 0;
    const auto count = [&](const auto&) { ++notifications; };
    const auto entries = reader.entries().stream().withoutFirst().subscribe(count);
    const auto size = reader.fileByteSize().stream().withoutFirst().subscribe(count);
    const auto error = reader.loadError().stream().withoutFirst().subscribe(count);

    tick();
    tick();

    EXPECT_EQ(notifications, 0);
}

} // namespace
} // namespace brindlex
