#include "shell/LaunchAtLoginManager.h"

#include "platform/simulated/SimulatedComputer.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class LaunchAtLoginManagerTest : public testing::Test {
protected:
    using Status = LoginItem::Status;

    PreferenceValue stored()
    {
        return computer.defaults.value("launchAtLogin").value_or("nothing");
    }
    std::vector<std::string> takeChanges()
    {
        std::vector<std::string> changes;
        for (const auto& entry : journal.take())
            if (entry.ends_with("login item"))
                changes.push_back(entry);
        return changes;
    }

    SimulatedJournal journal;
    RecordedLog log;
    SimulatedComputer computer{{.journal = &journal}};
    LaunchAtLoginManager manager{computer.defaults, computer.loginItem, computer.activation};
};

TEST_F(LaunchAtLoginManagerTest, storesNothingWhileTheSystemDoesWhatIsStored)
{
    manager.beginObserving();

    EXPECT_TRUE(computer.defaults.writes().empty());
}

TEST_F(LaunchAtLoginManagerTest, takesOverWhatTheSystemDoes)
{
    computer.loginItem.set(Status::enabled);
    manager.beginObserving();

    EXPECT_EQ(stored(), PreferenceValue(true));
    EXPECT_EQ(takeChanges(), std::vector<std::string>{});
}

TEST_F(LaunchAtLoginManagerTest, takesOverWhatWasSwitchedOffWhenTheProgramBecomesActive)
{
    computer.loginItem.set(Status::enabled);
    manager.beginObserving();

    computer.loginItem.set(Status::requiresApproval);
    EXPECT_EQ(stored(), PreferenceValue(true));
    computer.activation.becomeActive();

    EXPECT_EQ(stored(), PreferenceValue(false));
}

TEST_F(LaunchAtLoginManagerTest, switchesTheLoginItem)
{
    manager.setEnabled(true);
    EXPECT_EQ(computer.loginItem.status(), Status::enabled);
    manager.setEnabled(false);
    EXPECT_EQ(computer.loginItem.status(), Status::notRegistered);

    EXPECT_EQ(
        takeChanges(), (std::vector<std::string>{"register login item", "unregister login item"}));
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(LaunchAtLoginManagerTest, leavesAloneWhatIsAsWanted)
{
    manager.setEnabled(false);
    computer.loginItem.set(Status::enabled);
    manager.setEnabled(true);

    EXPECT_EQ(takeChanges(), std::vector<std::string>{});
}

TEST_F(LaunchAtLoginManagerTest, changesWhatTheSystemHasSwitchedOff)
{
    computer.loginItem.set(Status::requiresApproval);
    manager.setEnabled(true);
    EXPECT_EQ(computer.loginItem.status(), Status::enabled);

    computer.loginItem.set(Status::requiresApproval);
    manager.setEnabled(false);
    EXPECT_EQ(computer.loginItem.status(), Status::notRegistered);
}

TEST_F(LaunchAtLoginManagerTest, logsAFailureAndFollowsTheSystem)
{
    computer.loginItem.refusal = "Read-only file system";
    computer.defaults.set("launchAtLogin", true);
    manager.setEnabled(true);
    EXPECT_EQ(stored(), PreferenceValue(false));

    computer.loginItem.set(Status::enabled);
    computer.defaults.set("launchAtLogin", false);
    manager.setEnabled(false);
    EXPECT_EQ(stored(), PreferenceValue(true));

    EXPECT_EQ(log.lines(),
        (std::vector<std::string>{
            "ERROR [lifecycle] The start at login cannot be switched on: Read-only file system",
            "ERROR [lifecycle] The start at login cannot be switched off: Read-only file system"}));
}

} // namespace
} // namespace brindlex
