#include "shell/AuxiliaryWindowPresenter.h"

#include "platform/simulated/SimulatedComputer.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace brindlex {
namespace {

class AuxiliaryWindowPresenterTest : public testing::Test {
protected:
    AuxiliaryWindowPresenterTest()
    {
        for (const auto* scene : {"main", "logs", "permissions"})
            windows.addScene(scene);
        windows.setDelay({});
    }

    long tries(const std::string& scene)
    {
        const auto entries = journal.take();
        return std::ranges::count(entries, "bring forward " + scene);
    }

    SimulatedJournal journal;
    SimulatedComputer computer{{.journal = &journal}};
    SimulatedProgramWindows& windows = computer.programWindows;
    int reapplied = 0;
    AuxiliaryWindowPresenter presenter{windows, computer.mainThread, [this] { ++reapplied; }};
};

TEST_F(AuxiliaryWindowPresenterTest, opensTheWindowAndBringsItForward)
{
    windows.setDelay(0);

    presenter.present("logs");
    EXPECT_TRUE(windows.isInFront(*windows.window("logs")));
    presenter.present("permissions");
    EXPECT_TRUE(windows.isInFront(*windows.window("permissions")));
    presenter.present("logs");

    EXPECT_TRUE(windows.isInFront(*windows.window("logs")));
    EXPECT_EQ(computer.mainThread.timers(), 0U);
}

TEST_F(AuxiliaryWindowPresenterTest, triesAsOftenAsForTheMainWindow)
{
    presenter.present("logs");
    EXPECT_EQ(tries("logs"), 1);
    for (const auto delay : {0.05, 0.15, 0.3, 0.6, 1.0}) {
        computer.mainThread.advance(delay);
        EXPECT_EQ(tries("logs"), 1) << delay;
    }
    computer.mainThread.advance(60);

    EXPECT_EQ(tries("logs"), 0);
}

TEST_F(AuxiliaryWindowPresenterTest, beginsAnewWithASecondRequestForTheSameWindow)
{
    presenter.present("logs");
    computer.mainThread.advance(0.04);
    presenter.present("logs");
    EXPECT_EQ(computer.mainThread.timers(), 1U);

    presenter.present("permissions");
    EXPECT_EQ(computer.mainThread.timers(), 2U) << "each window is tried for by itself";
}

TEST_F(AuxiliaryWindowPresenterTest, triesNoMoreForAWindowThatTheUserHasClosed)
{
    presenter.present("logs");
    windows.close(*windows.window("logs"));

    EXPECT_EQ(computer.mainThread.timers(), 0U);
}

TEST_F(AuxiliaryWindowPresenterTest, appliesTheDockPolicyAgainWhenSuchAWindowIsClosed)
{
    for (const auto* scene : {"main", "logs", "permissions"})
        windows.open(scene);

    windows.close(*windows.window("main"));
    EXPECT_EQ(reapplied, 0);
    windows.close(*windows.window("logs"));
    EXPECT_EQ(reapplied, 1);
    windows.close(*windows.window("permissions"));
    EXPECT_EQ(reapplied, 2);
}

TEST_F(AuxiliaryWindowPresenterTest, triesInVainForAWindowThatThereIsNot)
{
    presenter.present("nothing");
    computer.mainThread.advance(60);

    EXPECT_EQ(computer.mainThread.timers(), 0U);
}

} // namespace
} // namespace brindlex
