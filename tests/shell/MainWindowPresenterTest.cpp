#include "shell/MainWindowPresenter.h"

#include "shell/MainWindowPresenterFixture.h"

namespace brindlex {
namespace {

class MainWindowPresenterTest : public MainWindowPresenterFixture { };

TEST_F(MainWindowPresenterTest, opensTheWindowAndBringsItForwardAtOnce)
{
    giveAction();
    windows.setDelay(0);

    presenter.showMainWindow();

    EXPECT_TRUE(isInFront());
    EXPECT_FALSE(presenter.isPresentationPending());
    EXPECT_EQ(journal.take(), (std::vector<std::string>{"open main", "bring forward main"}));
}

TEST_F(MainWindowPresenterTest, bringsTheWindowForwardThatIsOpenAndMinimised)
{
    giveAction();
    const auto window = openWindow();
    windows.minimise(window);
    windows.setDelay(0);
    journal.take();

    presenter.showMainWindow();

    EXPECT_TRUE(windows.isInFront(window));
    EXPECT_EQ(journal.take(), std::vector<std::string>{"bring forward main"});
}

TEST_F(MainWindowPresenterTest, triesFiveTimesMoreAndThenLeavesTheWindowAsItIs)
{
    giveAction();

    presenter.showMainWindow();
    EXPECT_EQ(tries(), 1);
    for (const auto delay : {0.05, 0.15, 0.3, 0.6, 1.0}) {
        mainThread.advance(delay - 0.001);
        EXPECT_EQ(tries(), 0) << delay;
        mainThread.advance(0.001);
        EXPECT_EQ(tries(), 1) << delay;
    }

    EXPECT_FALSE(presenter.isPresentationPending());
    mainThread.advance(60);
    EXPECT_EQ(tries(), 0);
    EXPECT_TRUE(windows.isVisible(*windows.window("main")));
}

TEST_F(MainWindowPresenterTest, triesNoMoreOnceTheWindowIsInFront)
{
    giveAction();
    windows.setDelay(0.03);

    presenter.showMainWindow();
    EXPECT_FALSE(isInFront());
    mainThread.advance(60);

    EXPECT_TRUE(isInFront());
    EXPECT_EQ(tries(), 2) << "at once, and after 50 ms, which found it in front";
}

TEST_F(MainWindowPresenterTest, putsASecondRequestInThePlaceOfTheFirst)
{
    giveAction();
    presenter.showMainWindow();
    mainThread.advance(0.04);
    tries();

    presenter.showMainWindow();

    EXPECT_EQ(mainThread.timers(), 1U);
    EXPECT_EQ(tries(), 1);
    mainThread.advance(0.049);
    EXPECT_EQ(tries(), 0) << "the first request would have tried 10 ms after the second";
    mainThread.advance(60);
    EXPECT_EQ(tries(), 5);
}

TEST_F(MainWindowPresenterTest, waitsForAWindowThatComesLater)
{
    presenter.showMainWindow();
    mainThread.advance(0.3);
    EXPECT_TRUE(presenter.isPresentationPending());
    windows.setDelay(0);

    openWindow();
    mainThread.advance(0.2);

    EXPECT_TRUE(isInFront());
    EXPECT_FALSE(presenter.isPresentationPending());
}

TEST_F(MainWindowPresenterTest, endsWithTheWindowThatItWasToBringForward)
{
    giveAction();
    presenter.showMainWindow();
    mainThread.advance(0.05);
    windows.close(*windows.window("main"));
    windows.setDelay(0);
    const auto other = openWindow();
    tries();

    mainThread.advance(60);

    EXPECT_EQ(tries(), 0);
    EXPECT_FALSE(presenter.isPresentationPending());
    EXPECT_FALSE(windows.isInFront(other));
}

TEST_F(MainWindowPresenterTest, endsWithTheWindowThatCameWhileItTried)
{
    presenter.showMainWindow();
    openWindow();
    mainThread.advance(0.05);
    EXPECT_EQ(tries(), 1);
    windows.close(*windows.window("main"));
    openWindow();

    mainThread.advance(60);

    EXPECT_EQ(tries(), 0);
}

TEST_F(MainWindowPresenterTest, tracksTheWindowThatIsOpen)
{
    EXPECT_EQ(presenter.trackedMainWindow(), std::nullopt);
    const auto before = presenter.trackedMainWindowToken();

    const auto window = openWindow();
    EXPECT_EQ(presenter.trackedMainWindow(), window);
    EXPECT_EQ(presenter.trackedMainWindowToken(), before + 1);

    windows.close(window);
    EXPECT_EQ(presenter.trackedMainWindow(), std::nullopt);
    EXPECT_EQ(presenter.trackedMainWindowToken(), before + 2);
}

TEST_F(MainWindowPresenterTest, tracksAWindowThatWasOpenBefore)
{
    const auto window = openWindow();

    const MainWindowPresenter other(windows, activation, mainThread);

    EXPECT_EQ(other.trackedMainWindow(), window);
}

TEST_F(MainWindowPresenterTest, knowsThatTheUserHasClosedTheWindowUntilItOpensAgain)
{
    giveAction();
    windows.close(openWindow());
    EXPECT_TRUE(presenter.isMainWindowClosedByUser());

    presenter.showMainWindow();

    EXPECT_FALSE(presenter.isMainWindowClosedByUser());
    EXPECT_TRUE(windows.window("main").has_value());
}

TEST_F(MainWindowPresenterTest, takesNoOtherWindowForTheMainOne)
{
    windows.addScene("logs");
    windows.open("logs");
    EXPECT_EQ(presenter.trackedMainWindow(), std::nullopt);

    windows.close(*windows.window("logs"));
    EXPECT_FALSE(presenter.isMainWindowClosedByUser());
}

TEST_F(MainWindowPresenterTest, leavesTheUserAloneWhoHasSeenTheWindowAndGone)
{
    giveAction();
    presenter.showMainWindow();
    activation.becomeActive();

    windows.goElsewhere();
    mainThread.runUntilIdle();
    EXPECT_FALSE(presenter.isPresentationPending());
    tries();
    mainThread.advance(60);

    EXPECT_EQ(tries(), 0);
}

TEST_F(MainWindowPresenterTest, triesNoMoreOnceTheWindowHasCome)
{
    giveAction();
    windows.setDelay(0.02);
    presenter.showMainWindow();

    mainThread.advance(0.03);
    EXPECT_FALSE(presenter.isPresentationPending());
    tries();
    mainThread.advance(60);

    EXPECT_EQ(tries(), 0) << "the user may have opened another window";
}

TEST_F(MainWindowPresenterTest, goesOnWhereTheUserHasNotSeenTheWindow)
{
    presenter.showMainWindow();
    activation.becomeActive();
    activation.resignActive();
    mainThread.runUntilIdle();
    EXPECT_TRUE(presenter.isPresentationPending()) << "there is no window yet";

    openWindow();
    activation.becomeActive();
    activation.resignActive();
    activation.becomeActive();
    mainThread.runUntilIdle();
    EXPECT_TRUE(presenter.isPresentationPending()) << "the program is active again";
}

TEST_F(MainWindowPresenterTest, leavesNothingBehind)
{
    {
        MainWindowPresenter other(windows, activation, mainThread);
        other.showMainWindow();
        activation.becomeActive();
        activation.resignActive();
    }
    mainThread.advance(60);

    EXPECT_EQ(mainThread.timers(), 0U);
}

TEST_F(MainWindowPresenterTest, forgetsEverythingWhenItStops)
{
    giveAction();
    windows.close(openWindow());
    openWindow();
    presenter.showMainWindow();
    const auto token = presenter.trackedMainWindowToken();
    tries();

    presenter.stop();
    mainThread.advance(60);

    EXPECT_EQ(tries(), 0);
    EXPECT_EQ(presenter.trackedMainWindow(), std::nullopt);
    EXPECT_EQ(presenter.trackedMainWindowToken(), token + 1);
    windows.close(*windows.window("main"));
    EXPECT_FALSE(presenter.isMainWindowClosedByUser());
}

} // namespace
} // namespace brindlex
