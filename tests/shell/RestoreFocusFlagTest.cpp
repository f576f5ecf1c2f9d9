#include "shell/RestoreFocusFlag.h"

#include "platform/simulated/SimulatedUserDefaults.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

const std::string restoreFocusKey = "shouldRestoreFocusAfterLanguageRelaunch";

TEST(RestoreFocusFlag, isTakenOnceAndBroughtToDisk)
{
    SimulatedJournal journal;
    SimulatedUserDefaults defaults(&journal);
    defaults.set(restoreFocusKey, true);
    journal.take();

    EXPECT_TRUE(consumeRestoreFocusFlag(defaults));
    EXPECT_EQ(journal.take(), (std::vector<std::string>{"set " + restoreFocusKey, "synchronize"}));
    EXPECT_FALSE(consumeRestoreFocusFlag(defaults));
    EXPECT_EQ(defaults.value(restoreFocusKey), PreferenceValue(false));
}

TEST(RestoreFocusFlag, isLeftAloneWhereItIsNotSet)
{
    SimulatedJournal journal;
    SimulatedUserDefaults defaults(&journal);

    EXPECT_FALSE(consumeRestoreFocusFlag(defaults));
    defaults.set(restoreFocusKey, false);
    journal.take();
    EXPECT_FALSE(consumeRestoreFocusFlag(defaults));
    EXPECT_EQ(journal.take(), std::vector<std::string>{});
}

} // namespace
} // namespace brindlex
