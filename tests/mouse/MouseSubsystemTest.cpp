#include "mouse/MouseSubsystem.h"

#include "platform/simulated/SimulatedComputer.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex {
namespace {

using Entries = std::vector<std::string>;

class MouseSubsystemTest : public testing::Test {
protected:
    RecordedLog log;
    SimulatedJournal journal;
    SimulatedComputer computer{{.journal = &journal}};
    GlobalEventTap tap{computer.input, computer.eventPermissions, computer.activation};
    MouseSubsystem subsystem{computer.platform(), tap};
};

TEST_F(MouseSubsystemTest, asksNothingOfTheComputerBeforeAPartIsStarted)
{
    journal.take();

    subsystem.clickManager();
    subsystem.gestureManager();
    subsystem.scrollManager();

    EXPECT_EQ(journal.entries(), Entries{});
    EXPECT_EQ(log.lines(), Entries{});
}

TEST_F(MouseSubsystemTest, hasOneOfEachPart)
{
    EXPECT_EQ(&subsystem.configStore(), &subsystem.configStore());
    EXPECT_EQ(&subsystem.spaceSwitcher(), &subsystem.spaceSwitcher());
    EXPECT_EQ(&subsystem.actionDispatcher(), &subsystem.actionDispatcher());
    EXPECT_EQ(&subsystem.resizeCursorDetector(), &subsystem.resizeCursorDetector());
    EXPECT_EQ(&subsystem.clickManager(), &subsystem.clickManager());
    EXPECT_EQ(&subsystem.gestureManager(), &subsystem.gestureManager());
    EXPECT_EQ(&subsystem.scrollManager(), &subsystem.scrollManager());
}

TEST_F(MouseSubsystemTest, readsThePreferencesAtTheFirstUseOfItsStore)
{
    MouseConfig config;
    config.click.enabled = false;
    writePreference(computer.defaults, MousePreferenceKeys{}.mouseConfig, config);

    EXPECT_EQ(subsystem.configStore().config().value(), config);
}

TEST_F(MouseSubsystemTest, takesOverWhatAnotherProcessHasWrittenWhenItReloads)
{
    subsystem.clickManager().start();
    MouseConfig config;
    config.click.enabled = false;
    writePreference(computer.defaults, MousePreferenceKeys{}.mouseConfig, config);
    EXPECT_EQ(subsystem.configStore().config().value(), MouseConfig{});

    subsystem.reload();

    EXPECT_EQ(subsystem.configStore().config().value(), config);
    EXPECT_EQ(computer.input.tapMasks(), std::vector<EventMask>{}) << "the clicks have followed";
}

TEST_F(MouseSubsystemTest, reloadsNothingThatIsNotUsed)
{
    computer.defaults.set("mouseConfig", PreferenceValue("damaged"));

    subsystem.reload();

    EXPECT_EQ(log.lines(), Entries{}) << "nobody has read it";
}

} // namespace
} // namespace brindlex
