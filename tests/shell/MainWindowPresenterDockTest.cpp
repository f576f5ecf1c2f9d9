#include "shell/MainWindowPresenter.h"

#include "shell/MainWindowPresenterFixture.h"

namespace brindlex {
namespace {

constexpr DockIconPolicyResult cameToTheDock{true, true};
constexpr DockIconPolicyResult leftTheDock{true, false};

class MainWindowPresenterDock : public MainWindowPresenterFixture { };

TEST_F(MainWindowPresenterDock, raisesTheVisibleWindowWithin150MillisecondsWhenTheIconGoes)
{
    openWindow();
    windows.setDelay(0);

    presenter.handleDockResult(leftTheDock, false);
    windows.goElsewhere();
    EXPECT_FALSE(isInFront());
    mainThread.advance(0.15);

    EXPECT_TRUE(isInFront());
}

TEST_F(MainWindowPresenterDock, triesTwiceToRaiseTheWindowAlsoWhenTheProgramLosesTheFocus)
{
    openWindow();
    activation.becomeActive();
    tries();

    presenter.handleDockResult(leftTheDock, true);
    windows.goElsewhere();
    EXPECT_EQ(tries(), 0);
    mainThread.advance(0.05);
    EXPECT_EQ(tries(), 1);
    mainThread.advance(0.15);
    EXPECT_EQ(tries(), 1);

    EXPECT_FALSE(presenter.isPresentationPending());
}

TEST_F(MainWindowPresenterDock, leavesAWindowAloneThatIsNotToBeSeen)
{
    presenter.handleDockResult(leftTheDock, false);
    EXPECT_FALSE(presenter.isPresentationPending()) << "there is none";

    const auto window = openWindow();
    windows.minimise(window);
    presenter.handleDockResult(leftTheDock, false);
    EXPECT_FALSE(presenter.isPresentationPending()) << "it is minimised";

    windows.close(window);
    presenter.handleDockResult(leftTheDock, true);
    EXPECT_FALSE(presenter.isPresentationPending()) << "the user has closed it";
}

TEST_F(MainWindowPresenterDock, showsTheWindowWithTheIconWhereSomebodyAskedForIt)
{
    giveAction();
    presenter.handleDockResult(cameToTheDock, false);
    EXPECT_EQ(windows.window("main"), std::nullopt);

    presenter.handleDockResult(cameToTheDock, true);
    mainThread.advance(60);

    EXPECT_EQ(tries(), 6);
}

TEST_F(MainWindowPresenterDock, doesNothingWhereNothingHasChanged)
{
    giveAction();
    openWindow();
    tries();

    for (const bool showsDockIcon : {false, true})
        presenter.handleDockResult({false, showsDockIcon}, true);
    mainThread.advance(60);

    EXPECT_EQ(tries(), 0);
}

TEST_F(MainWindowPresenterDock, takesThePlaceOfARequestThatIsPending)
{
    giveAction();
    presenter.showMainWindow();
    tries();

    presenter.handleDockResult(leftTheDock, false);
    mainThread.advance(60);

    EXPECT_EQ(tries(), 2);
}

} // namespace
} // namespace brindlex
