#include "inputmethod/InputMethodSubsystem.h"

#include "platform/simulated/SimulatedComputer.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex {
namespace {

using Entries = std::vector<std::string>;

class InputMethodSubsystemTest : public testing::Test {
protected:
    RecordedLog log;
    SimulatedJournal journal;
    SimulatedComputer computer{{.journal = &journal}};
    InputMethodSubsystem subsystem{computer.platform()};
};

TEST_F(InputMethodSubsystemTest, hasOneOfEachPart)
{
    EXPECT_EQ(&subsystem.configStore(), &subsystem.configStore());
    EXPECT_EQ(&subsystem.smartConfigStore(), &subsystem.smartConfigStore());
    EXPECT_EQ(&subsystem.switchCoordinator(), &subsystem.switchCoordinator());
}

TEST_F(InputMethodSubsystemTest, observesFromTheFirstUseOfTheCoordinator)
{
    subsystem.configStore();
    subsystem.smartConfigStore();
    EXPECT_EQ(journal.take(), Entries{});

    subsystem.switchCoordinator();

    EXPECT_EQ(subsystem.switchCoordinator().state().lifecycle, SwitchState::Lifecycle::observing);
}

TEST_F(InputMethodSubsystemTest, takesOverRulesThatAnotherProcessHasWritten)
{
    auto& coordinator = subsystem.switchCoordinator();
    InputMethodConfig config;
    config.enabled = false;
    writePreference(computer.defaults, InputMethodPreferenceKeys{}.inputMethodConfig, config);
    EXPECT_EQ(coordinator.state().lifecycle, SwitchState::Lifecycle::observing);

    subsystem.reload();

    EXPECT_EQ(subsystem.configStore().config().value(), config);
    EXPECT_EQ(coordinator.state().lifecycle, SwitchState::Lifecycle::stopped);
}

TEST_F(InputMethodSubsystemTest, takesOverWhatAnotherProcessHasWrittenOfTheLearning)
{
    SmartInputMethodConfig config;
    config.enabled = true;
    EXPECT_FALSE(subsystem.smartConfigStore().config().value().enabled);
    writePreference(computer.defaults, InputMethodPreferenceKeys{}.smartInputMethodConfig, config);

    subsystem.reload();

    EXPECT_EQ(subsystem.smartConfigStore().config().value(), config);
}

TEST_F(InputMethodSubsystemTest, keepsWhatAnotherProcessHasLearnedWhenItSwitchesTheRulesOff)
{
    subsystem.switchCoordinator();
    SmartInputMethodConfig learned;
    learned.enabled = true;
    InputMethodConfig config;
    config.enabled = false;
    writePreference(computer.defaults, InputMethodPreferenceKeys{}.smartInputMethodConfig, learned);
    writePreference(computer.defaults, InputMethodPreferenceKeys{}.inputMethodConfig, config);

    subsystem.reload();

    EXPECT_EQ(subsystem.smartConfigStore().config().value(), learned);
    EXPECT_EQ(readPreference(computer.defaults, InputMethodPreferenceKeys{}.smartInputMethodConfig),
        learned);
}

TEST_F(InputMethodSubsystemTest, reloadsNothingThatIsNotUsed)
{
    computer.defaults.set("inputMethodConfig", PreferenceValue("damaged"));
    computer.defaults.set("smartInputMethodConfig", PreferenceValue("damaged"));

    subsystem.reload();

    EXPECT_EQ(log.lines(), Entries{}) << "nobody has read it";
}

} // namespace
} // namespace brindlex
