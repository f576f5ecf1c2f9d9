#include "shell/DockIconPolicyManager.h"

#include "platform/simulated/SimulatedActivationPolicy.h"
#include "platform/simulated/SimulatedMainThread.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex {
namespace {

class DockIconPolicyManagerTest : public testing::Test {
protected:
    DockIconPolicyManager::ResultHandler noting(std::string name)
    {
        return [this, name](DockIconPolicyResult result) {
            reports.push_back(name + (result.didChange ? " changed to " : " is ")
                + (result.showsDockIcon ? "shown" : "hidden"));
        };
    }

    SimulatedClock clock;
    SimulatedMainThread mainThread{clock};
    SimulatedJournal journal;
    SimulatedActivationPolicy policies{&journal};
    DockIconPolicyManager manager{policies, mainThread};
    std::vector<std::string> reports;
};

using Texts = std::vector<std::string>;

TEST_F(DockIconPolicyManagerTest, setsThePolicyOnce)
{
    EXPECT_EQ(manager.apply(false), (DockIconPolicyResult{true, false}));
    EXPECT_EQ(policies.activationPolicy(), ActivationPolicy::accessory);
    EXPECT_EQ(manager.apply(false), (DockIconPolicyResult{false, false}));
    EXPECT_EQ(journal.take(), Texts{"policy accessory"});

    EXPECT_EQ(manager.apply(true), (DockIconPolicyResult{true, true}));
    EXPECT_EQ(journal.take(), Texts{"policy regular"});
}

TEST_F(DockIconPolicyManagerTest, changesWithItsFirstUseAlsoWhereThePolicyHoldsAlready)
{
    EXPECT_EQ(manager.apply(true), (DockIconPolicyResult{true, true}));
    EXPECT_EQ(manager.apply(true), (DockIconPolicyResult{false, true}));

    EXPECT_EQ(journal.take(), Texts{});
}

TEST_F(DockIconPolicyManagerTest, setsThePolicyAgainThatTheSystemHasTakenBack)
{
    manager.apply(false);
    policies.fallBackTo(ActivationPolicy::regular);

    EXPECT_EQ(manager.apply(false), (DockIconPolicyResult{true, false}));

    EXPECT_EQ(policies.activationPolicy(), ActivationPolicy::accessory);
}

TEST_F(DockIconPolicyManagerTest, appliesLaterFromTheLoopAndReportsOnce)
{
    manager.applyDeferred(false, noting("icon"));
    EXPECT_EQ(journal.entries(), Texts{});

    mainThread.advance(60);

    EXPECT_EQ(journal.take(), Texts{"policy accessory"});
    EXPECT_EQ(reports, Texts{"icon changed to hidden"});
    EXPECT_EQ(mainThread.timers(), 0U);
}

TEST_F(DockIconPolicyManagerTest, knowsWhatWasAskedForLastByEitherWay)
{
    EXPECT_EQ(manager.wantedShowsDockIcon(), std::nullopt);
    manager.applyDeferred(false, {});
    EXPECT_EQ(manager.wantedShowsDockIcon(), false);
    mainThread.advance(60);
    EXPECT_EQ(manager.wantedShowsDockIcon(), false);

    manager.apply(true);

    EXPECT_EQ(manager.wantedShowsDockIcon(), true);
}

TEST_F(DockIconPolicyManagerTest, reportsThatNothingHadToChange)
{
    manager.apply(true);

    manager.applyDeferred(true, noting("icon"));
    mainThread.advance(60);

    EXPECT_EQ(reports, Texts{"icon is shown"});
}

TEST_F(DockIconPolicyManagerTest, appliesTheLastOfManyWantedValues)
{
    for (const bool showsDockIcon : {false, true, false, true, true, false})
        manager.applyDeferred(showsDockIcon, noting(showsDockIcon ? "on" : "off"));
    mainThread.advance(60);

    EXPECT_EQ(journal.take(), Texts{"policy accessory"});
    EXPECT_EQ(reports, Texts{"off changed to hidden"});
}

TEST_F(DockIconPolicyManagerTest, appliesWhatIsWantedWhileItLooksAfterTheFormer)
{
    manager.applyDeferred(false, noting("first"));
    mainThread.runUntilIdle();
    ASSERT_EQ(policies.activationPolicy(), ActivationPolicy::accessory);
    EXPECT_EQ(manager.wantedShowsDockIcon(), false);

    manager.applyDeferred(true, noting("second"));
    EXPECT_EQ(manager.wantedShowsDockIcon(), true);
    mainThread.advance(60);

    EXPECT_EQ(journal.take(), (Texts{"policy accessory", "policy regular"}));
    EXPECT_EQ(reports, Texts{"second changed to shown"});
}

TEST_F(DockIconPolicyManagerTest, setsAgainWhatTheSystemHasNotTaken)
{
    policies.refuse(2);

    manager.applyDeferred(false, noting("icon"));
    mainThread.advance(60);

    EXPECT_EQ(policies.activationPolicy(), ActivationPolicy::accessory);
    EXPECT_EQ(journal.take(), Texts(3, "policy accessory"));
    EXPECT_EQ(reports, Texts{"icon changed to hidden"});
}

TEST_F(DockIconPolicyManagerTest, givesUpWhereTheSystemNeverTakesIt)
{
    policies.refuse(100);

    manager.applyDeferred(false, noting("icon"));
    mainThread.advance(60);

    EXPECT_EQ(reports, Texts{"icon changed to hidden"});
    EXPECT_EQ(mainThread.timers(), 0U);
}

TEST_F(DockIconPolicyManagerTest, forgetsWhatIsPendingWhenItIsCancelled)
{
    manager.applyDeferred(false, noting("icon"));

    manager.cancelPending();
    mainThread.advance(60);

    EXPECT_EQ(journal.entries(), Texts{});
    EXPECT_EQ(reports, Texts{});
    EXPECT_EQ(manager.wantedShowsDockIcon(), std::nullopt);
    manager.applyDeferred(false, noting("later"));
    mainThread.advance(60);
    EXPECT_EQ(reports, Texts{"later changed to hidden"});
}

TEST_F(DockIconPolicyManagerTest, mayBeUsedAgainByTheHandler)
{
    manager.applyDeferred(false,
        [this](DockIconPolicyResult) { manager.applyDeferred(true, noting("by the handler")); });

    mainThread.advance(60);

    EXPECT_EQ(reports, Texts{"by the handler changed to shown"});
}

} // namespace
} // namespace brindlex
