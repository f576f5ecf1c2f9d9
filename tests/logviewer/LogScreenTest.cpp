#include "logviewer/LogScreen.h"

#include "platform/simulated/SimulatedMainThread.h"
#include "support/basics/RecordedLog.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Content = LogScreen::Content;

class LogScreenTest : public testing::Test {
protected:
    LogScreenTest()
    {
        log.setFolder(folder.path());
        write(appFile, "now INFO [ui] a — one\nnow WARN [ui] b — two\n");
        write(folder.path() / "com.brindlex.Brindlex.finder.log", "now INFO [x] c — three\n");
    }

    std::vector<std::string> shown() const
    {
        std::vector<std::string> messages;
        for (const auto index : screen.visible().value())
            messages.push_back(screen.entries()[index].message);
        return messages;
    }

    using Shown = std::vector<std::string>;

    RecordedLog log;
    TemporaryFolder folder;
    const std::filesystem::path appFile = folder.path() / "com.brindlex.Brindlex.app.log";
    SimulatedClock clock;
    SimulatedMainThread mainThread{clock};
    const StringCatalogue strings{"en", {}};
    LogScreen screen{mainThread, strings};
};

TEST_F(LogScreenTest, followsBothLogsWhileItIsShown)
{
    EXPECT_EQ(screen.content(), Content::noLogs);

    screen.appear();
    EXPECT_EQ(mainThread.timers(), 2U);
    EXPECT_EQ(shown(), (Shown{"one", "two"}));
    screen.disappear();

    EXPECT_EQ(mainThread.timers(), 0U);
    EXPECT_EQ(shown(), (Shown{"one", "two"}));
}

TEST_F(LogScreenTest, showsOneLogAtATime)
{
    screen.appear();

    screen.setSubsystem(LogDisplaySubsystem::finder);

    EXPECT_EQ(shown(), Shown{"three"});
    EXPECT_EQ(screen.file(), folder.path() / "com.brindlex.Brindlex.finder.log");
    write(appFile, "");
    mainThread.advance(1.0);
    EXPECT_EQ(shown(), Shown{"three"}) << "Changes of the other log are not shown.";
}

TEST_F(LogScreenTest, filtersAndCounts)
{
    screen.appear();
    EXPECT_EQ(screen.countLine(), "2 / 2 entries");

    screen.setSelectedLevels({LogLevel::warn, LogLevel::error});
    EXPECT_EQ(shown(), Shown{"two"});
    EXPECT_EQ(screen.countLine(), "1 / 2 entries");
    screen.setQuery("on");

    EXPECT_EQ(shown(), Shown{});
    EXPECT_EQ(screen.content(), Content::noMatches);
    screen.setSelectedLevels({LogLevel::info});
    EXPECT_EQ(shown(), Shown{"one"});
    EXPECT_EQ(screen.content(), Content::entries);
}

TEST_F(LogScreenTest, filtersWhatIsAdded)
{
    screen.appear();
    screen.setQuery("four");

    write(appFile, contentOf(appFile) + "now INFO [ui] d — four\n");
    mainThread.advance(1.0);

    EXPECT_EQ(shown(), Shown{"four"});
}

TEST_F(LogScreenTest, knowsTheSelectedEntryWhileItIsVisible)
{
    screen.appear();
    EXPECT_EQ(screen.selectedEntry(), nullptr);

    screen.select("com.brindlex.Brindlex.app#2");
    ASSERT_NE(screen.selectedEntry(), nullptr);
    EXPECT_EQ(screen.selectedEntry()->message, "two");
    screen.setQuery("one");

    EXPECT_EQ(screen.selectedEntry(), nullptr);
}

TEST_F(LogScreenTest, emptiesTheShownLogOnceThatIsConfirmed)
{
    screen.appear();
    screen.requestClear();
    EXPECT_TRUE(screen.showsClearConfirm());
    EXPECT_EQ(screen.clearQuestion(), "Clear App log?");
    screen.cancelClear();
    EXPECT_FALSE(screen.showsClearConfirm());
    EXPECT_EQ(shown(), (Shown{"one", "two"}));

    screen.requestClear();
    screen.confirmClear();

    EXPECT_FALSE(screen.showsClearConfirm());
    EXPECT_EQ(screen.content(), Content::noLogs);
    screen.setSubsystem(LogDisplaySubsystem::finder);
    EXPECT_EQ(screen.clearQuestion(), "Clear Finder log?");
    EXPECT_EQ(shown(), Shown{"three"});
}

TEST_F(LogScreenTest, saysThatALogCannotBeRead)
{
    screen.appear();
    std::filesystem::remove(appFile);
    std::filesystem::create_directory(appFile);
    int changes = 0;
    const auto observation
        = screen.visible().stream().withoutFirst().subscribe([&](const auto&) { ++changes; });

    mainThread.advance(1.0);

    EXPECT_EQ(screen.content(), Content::cannotRead);
    EXPECT_EQ(screen.loadError(), "Failed to read log: Is not a regular file");
    EXPECT_GT(changes, 0);
}

TEST_F(LogScreenTest, keepsTheNewestEntryInSightUntilToldOtherwise)
{
    EXPECT_TRUE(screen.autoScroll());
    screen.setAutoScroll(false);
    EXPECT_FALSE(screen.autoScroll());
}

} // namespace
} // namespace brindlex
