#include "shell/MenuBarExtra.h"

#include "platform/simulated/SimulatedComputer.h"
#include "shell/MenuBarMenu.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// The icon of a program that can look for updates.
class MenuBarExtraTest : public testing::Test {
protected:
    MenuBarExtraTest() { computer.program.updateFeedURL = "https://brindlex.example/feed.json"; }

    void choose(MenuBarItem item) { icon.choose(static_cast<int>(item)); }
    bool canCheck() const { return icon.contents()->menu.front().isEnabled; }

    const RecordedLog log;
    SimulatedComputer computer;
    SimulatedStatusItem& icon = computer.statusItem;
    const StringCatalogue strings{"en"};
    std::vector<std::string> done;
    std::optional<SoftwareUpdateManager> updates;
    std::optional<MenuBarExtra> extra;

    void start()
    {
        updates.emplace(computer.network, computer.program);
        extra.emplace(icon, computer.mainThread, *updates, strings, "Brindlex",
            MenuBarExtra::Actions{
                [this] { done.push_back("open"); }, [this] { done.push_back("quit"); }});
        extra->start();
    }
};

const auto absenceLine
    = "INFO [lifecycle] No tray shows the icon; starting Brindlex again opens its window";

TEST_F(MenuBarExtraTest, showsTheIconWithItsMenu)
{
    EXPECT_EQ(icon.contents(), std::nullopt);

    start();

    EXPECT_EQ(icon.contents(), (StatusItemContents{"Brindlex", menuBarMenu(strings, true)}));
}

TEST_F(MenuBarExtraTest, opensTheProgramByItsItemAndByAClick)
{
    start();

    choose(MenuBarItem::openApp);
    icon.click();

    EXPECT_EQ(done, (std::vector<std::string>{"open", "open"}));
}

TEST_F(MenuBarExtraTest, quitsTheProgram)
{
    start();

    choose(MenuBarItem::quitApp);

    EXPECT_EQ(done, std::vector<std::string>{"quit"});
}

TEST_F(MenuBarExtraTest, checksForUpdatesOnceAtATime)
{
    start();
    EXPECT_TRUE(canCheck());

    choose(MenuBarItem::checkForUpdates);
    EXPECT_FALSE(canCheck());
    EXPECT_FALSE(updates->canCheckForUpdates().value());

    computer.mainThread.runUntilIdle();
    EXPECT_TRUE(canCheck());
    EXPECT_EQ(done, std::vector<std::string>{});
}

TEST_F(MenuBarExtraTest, offersNoCheckWithoutAFeed)
{
    computer.program.updateFeedURL = {};

    start();

    EXPECT_EQ(icon.contents(), (StatusItemContents{"Brindlex", menuBarMenu(strings, false)}));
}

TEST_F(MenuBarExtraTest, saysNothingWhereTheIconIs)
{
    start();
    computer.mainThread.advance(3600);

    EXPECT_EQ(log.lines(), std::vector<std::string>{});
    EXPECT_EQ(computer.mainThread.timers(), 0U);
}

TEST_F(MenuBarExtraTest, saysOnceThatNoTrayShowsTheIcon)
{
    icon.setPlace(false);
    start();

    computer.mainThread.advance(4.999);
    EXPECT_EQ(log.lines(), std::vector<std::string>{});
    computer.mainThread.advance(0.001);
    EXPECT_EQ(log.lines(), std::vector<std::string>{absenceLine});

    icon.setPlace(true);
    icon.setPlace(false);
    computer.mainThread.advance(3600);
    EXPECT_EQ(log.lines(), std::vector<std::string>{absenceLine});
    EXPECT_EQ(computer.mainThread.timers(), 0U);
}

TEST_F(MenuBarExtraTest, waitsForThePanelOfASessionThatIsStarting)
{
    icon.setPlace(false);
    start();

    computer.mainThread.advance(4);
    icon.setPlace(true);
    computer.mainThread.advance(3600);

    EXPECT_EQ(log.lines(), std::vector<std::string>{});
}

TEST_F(MenuBarExtraTest, saysThatATrayHasGoneForGoodAndNotThatItIsReplaced)
{
    start();

    icon.setPlace(false);
    computer.mainThread.advance(4);
    icon.setPlace(true);
    computer.mainThread.advance(4);
    EXPECT_EQ(log.lines(), std::vector<std::string>{});

    icon.setPlace(false);
    computer.mainThread.advance(5);
    EXPECT_EQ(log.lines(), std::vector<std::string>{absenceLine});
}

TEST_F(MenuBarExtraTest, takesTheIconAwayWithItsEnd)
{
    icon.setPlace(false);
    start();

    extra->stop();
    icon.setPlace(true);
    computer.mainThread.advance(3600);

    EXPECT_EQ(icon.contents(), std::nullopt);
    EXPECT_EQ(log.lines(), std::vector<std::string>{});
    EXPECT_EQ(computer.mainThread.timers(), 0U);
}

TEST_F(MenuBarExtraTest, mayBeStoppedByWhatIsChosen)
{
    start();
    const auto stopping = icon.observeChoice([this](int) { extra->stop(); });

    choose(MenuBarItem::quitApp);

    EXPECT_EQ(done, std::vector<std::string>{"quit"});
    EXPECT_EQ(icon.contents(), std::nullopt);
}

} // namespace
} // namespace brindlex
