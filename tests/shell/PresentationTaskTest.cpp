#include "shell/PresentationTask.h"

#include "platform/simulated/SimulatedMainThread.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace brindlex {
namespace {

class PresentationTaskTest : public testing::Test {
protected:
    /// An attempt that is made until so many were made.
    PresentationTask::Attempt until(std::size_t attempts)
    {
        return [this, attempts] {
            made.push_back(std::lround(clock.continuousTime() * 1000) - begin);
            return made.size() < attempts;
        };
    }

    SimulatedClock clock;
    SimulatedMainThread mainThread{clock};
    PresentationTask task{mainThread};
    const long begin = std::lround(clock.continuousTime() * 1000);
    /// When each attempt was made, in milliseconds.
    std::vector<long> made;
};

using Moments = std::vector<long>;
constexpr std::size_t never = 100;

TEST_F(PresentationTaskTest, pausesBeforeEachTryToShowAWindow)
{
    task.start(showDelays, until(never));
    EXPECT_EQ(made, Moments{});

    mainThread.advance(60);

    EXPECT_EQ(made, (Moments{50, 200, 500, 1100, 2100}));
    EXPECT_FALSE(task.isPending());
}

TEST_F(PresentationTaskTest, triesTwiceToRaiseAWindowAgain)
{
    task.start(raiseAgainDelays, until(never));

    mainThread.advance(60);

    EXPECT_EQ(made, (Moments{50, 200}));
}

TEST_F(PresentationTaskTest, endsWithTheTryThatNeedsNoOther)
{
    task.start(showDelays, until(2));

    mainThread.advance(0.199);
    EXPECT_TRUE(task.isPending());
    mainThread.advance(60);

    EXPECT_EQ(made, (Moments{50, 200}));
    EXPECT_FALSE(task.isPending());
    EXPECT_EQ(mainThread.timers(), 0U);
}

TEST_F(PresentationTaskTest, endsWhenItIsCancelled)
{
    task.start(showDelays, until(never));
    mainThread.advance(0.1);

    task.cancel();
    mainThread.advance(60);

    EXPECT_EQ(made, Moments{50});
    EXPECT_FALSE(task.isPending());
}

TEST_F(PresentationTaskTest, beginsAnewWithTheFirstPause)
{
    task.start(showDelays, until(never));
    mainThread.advance(0.1);
    task.start(raiseAgainDelays, until(never));

    EXPECT_EQ(mainThread.timers(), 1U);
    mainThread.advance(60);

    EXPECT_EQ(made, (Moments{50, 150, 300}));
}

TEST_F(PresentationTaskTest, mayBeCancelledByTheTry)
{
    task.start(showDelays, [this] {
        made.push_back(0);
        task.cancel();
        return true;
    });

    mainThread.advance(60);

    EXPECT_EQ(made, Moments{0});
}

TEST_F(PresentationTaskTest, mayBeStartedByTheTryAndGoesOnWithThat)
{
    for (const bool again : {true, false}) {
        made.clear();
        task.start(showDelays, [this, again, other = until(never)] {
            task.start(raiseAgainDelays, other);
            return again;
        });
        EXPECT_TRUE(task.isPending());
        mainThread.advance(60);

        EXPECT_EQ(made.size(), 2U);
    }
}

TEST_F(PresentationTaskTest, keepsWhatAnAttemptRemembers)
{
    task.start(showDelays, [tries = 0]() mutable { return ++tries < 3; });

    mainThread.advance(0.5);

    EXPECT_FALSE(task.isPending());
}

} // namespace
} // namespace brindlex
