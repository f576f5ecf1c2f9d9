#include "platform/AutomationPermission.h"

#include "platform/linux/accessibility/AccessibilitySwitch.h"
#include "platform/linux/system/SessionBus.h"
#include "platform/simulated/SimulatedAutomationPermission.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/VirtualDesktop.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class SimulatedPrograms {
public:
    SimulatedPrograms() { permission.system = AutomationPermission::State::off; }

    bool eventually(const std::function<bool()>& condition) { return condition(); }

    SimulatedAutomationPermission permission;
};

/// A desktop whose accessibility launcher nothing has started yet.
class ProgramsOfADesktop {
public:
    bool eventually(const std::function<bool()>& condition) { return loopUntil(condition); }

private:
    VirtualDesktop desktop_{{.windowManager = WindowManager::none}};
    SessionBus bus_;

public:
    AccessibilitySwitch permission{bus_.connection()};
};

template <typename Programs>
class AutomationPermissionContract : public testing::Test {
protected:
    using State = AutomationPermission::State;

    State state() const { return programs.permission.state().value(); }
    bool becomes(State state)
    {
        return programs.eventually([&] { return this->state() == state; });
    }

    Programs programs;
};

using AllPrograms = testing::Types<SimulatedPrograms, ProgramsOfADesktop>;
TYPED_TEST_SUITE(AutomationPermissionContract, AllPrograms);

TYPED_TEST(AutomationPermissionContract, isUnknownUntilItIsAskedFor)
{
    EXPECT_EQ(this->state(), AutomationPermission::State::unknown);
}

TYPED_TEST(AutomationPermissionContract, isReadWhenItIsRefreshed)
{
    this->programs.permission.refresh();

    EXPECT_TRUE(this->becomes(AutomationPermission::State::off));
}

TYPED_TEST(AutomationPermissionContract, isOnOnceItWasRequested)
{
    this->programs.permission.refresh();
    ASSERT_TRUE(this->becomes(AutomationPermission::State::off));

    this->programs.permission.request();

    EXPECT_TRUE(this->becomes(AutomationPermission::State::on));
}

TYPED_TEST(AutomationPermissionContract, canBeRequestedWithoutBeingAskedForBefore)
{
    this->programs.permission.request();

    EXPECT_TRUE(this->becomes(AutomationPermission::State::on));
}

TYPED_TEST(AutomationPermissionContract, notifiesOfEachReplyAlsoOfTheSame)
{
    int replies = -1;
    const auto observation = this->programs.permission.state().subscribe([&](auto) { ++replies; });

    this->programs.permission.refresh();
    EXPECT_TRUE(this->programs.eventually([&] { return replies == 1; }));
    this->programs.permission.refresh();
    EXPECT_TRUE(this->programs.eventually([&] { return replies == 2; }));
}

} // namespace
} // namespace brindlex
