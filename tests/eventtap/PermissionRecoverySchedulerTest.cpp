#include "eventtap/PermissionRecoveryScheduler.h"

#include "platform/simulated/SimulatedMainThread.h"
#include "platform/simulated/SimulatedProgramActivation.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex {
namespace {

class PermissionRecoverySchedulerTest : public testing::Test {
protected:
    std::function<void()> noting(std::string name)
    {
        return [this, name] { attempts.push_back(name); };
    }

    SimulatedClock clock;
    SimulatedMainThread mainThread{clock};
    SimulatedProgramActivation activation;
    std::vector<std::string> attempts;
    PermissionRecoveryScheduler scheduler{mainThread, activation};
};

using Names = std::vector<std::string>;

TEST_F(PermissionRecoverySchedulerTest, triesOnceAfterTwoSeconds)
{
    scheduler.schedule(noting("a"));

    mainThread.advance(1.999);
    EXPECT_EQ(attempts, Names{});
    mainThread.advance(0.001);
    EXPECT_EQ(attempts, Names{"a"});
    mainThread.advance(60);
    EXPECT_EQ(attempts, Names{"a"});
}

TEST_F(PermissionRecoverySchedulerTest, triesEachTimeTheProgramBecomesActive)
{
    scheduler.schedule(noting("a"));

    activation.becomeActive();
    mainThread.advance(2);
    activation.becomeActive();

    EXPECT_EQ(attempts, (Names{"a", "a", "a"}));
}

TEST_F(PermissionRecoverySchedulerTest, keepsOneTaskAndTheFirstObserver)
{
    scheduler.schedule(noting("first"));
    mainThread.advance(1.5);
    scheduler.schedule(noting("second"));

    EXPECT_EQ(mainThread.timers(), 1u);
    mainThread.advance(1.5);
    EXPECT_EQ(attempts, Names{});
    mainThread.advance(0.5);
    EXPECT_EQ(attempts, Names{"second"});
    activation.becomeActive();
    EXPECT_EQ(attempts, (Names{"second", "first"}));
}

TEST_F(PermissionRecoverySchedulerTest, isIdleOnceItIsCancelled)
{
    scheduler.cancel();
    scheduler.schedule(noting("a"));

    scheduler.cancel();

    EXPECT_EQ(mainThread.timers(), 0u);
    EXPECT_FALSE(activation.isObserved());
    scheduler.schedule(noting("b"));
    activation.becomeActive();
    EXPECT_EQ(attempts, Names{"b"});
}

TEST_F(PermissionRecoverySchedulerTest, pollsEveryTwoSecondsWhenTheAttemptSchedulesAgain)
{
    std::function<void()> retry = [&] {
        attempts.push_back("a");
        scheduler.schedule(retry);
    };
    scheduler.schedule(retry);

    mainThread.advance(10);

    EXPECT_EQ(attempts.size(), 5u);
    EXPECT_EQ(mainThread.timers(), 1u);
}

TEST_F(PermissionRecoverySchedulerTest, canBeCancelledByTheAttempt)
{
    auto text = std::make_shared<std::string>("held by the attempt");
    scheduler.schedule([this, text] {
        scheduler.cancel();
        attempts.push_back(*text);
    });
    text.reset();

    activation.becomeActive();
    activation.becomeActive();
    mainThread.advance(10);

    EXPECT_EQ(attempts, Names{"held by the attempt"});
}

TEST(PermissionRecoveryScheduler, takesTaskAndObserverWithIt)
{
    SimulatedClock clock;
    SimulatedMainThread mainThread(clock);
    SimulatedProgramActivation activation;
    {
        PermissionRecoveryScheduler scheduler(mainThread, activation);
        scheduler.schedule([] { FAIL(); });
    }
    EXPECT_EQ(mainThread.timers(), 0u);
    EXPECT_FALSE(activation.isObserved());
}

} // namespace
} // namespace brindlex
