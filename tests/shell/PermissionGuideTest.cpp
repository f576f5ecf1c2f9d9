#include "shell/PermissionGuide.h"

#include "platform/simulated/SimulatedAutomationPermission.h"
#include "platform/simulated/SimulatedEventPermissions.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Reason = PermissionObstacle::Reason;
using Advice = PermissionAdvice::Kind;
using State = AutomationPermission::State;

class PermissionGuideTest : public testing::Test {
protected:
    PermissionReport report(GuidedPermission permission)
    {
        for (const auto& each : guide.reports())
            if (each.permission == permission)
                return each;
        ADD_FAILURE() << "the guide does not show it";
        return {};
    }
    PermissionReport automationReport(State state)
    {
        automation.system = state;
        guide.refresh();
        return report(GuidedPermission::automation);
    }

    SimulatedEventPermissions events;
    SimulatedAutomationPermission automation;
    PermissionGuide guide{events, automation};
};

TEST_F(PermissionGuideTest, showsWhatTheProgramNeedsInItsOrder)
{
    std::vector<GuidedPermission> shown;
    for (const auto& each : guide.reports())
        shown.push_back(each.permission);

    EXPECT_EQ(shown,
        (std::vector{GuidedPermission::accessibility, GuidedPermission::inputMonitoring,
            GuidedPermission::automation}));
}

TEST_F(PermissionGuideTest, hasNothingToAskForWhatIsAllowed)
{
    for (const auto permission :
        {GuidedPermission::accessibility, GuidedPermission::inputMonitoring})
        EXPECT_EQ(report(permission), (PermissionReport{permission, PermissionStatus::allowed}));
}

TEST_F(PermissionGuideTest, tellsEachPermissionOfItsOwn)
{
    events.canListen = false;

    EXPECT_EQ(report(GuidedPermission::accessibility).status, PermissionStatus::allowed);
    EXPECT_EQ(report(GuidedPermission::inputMonitoring),
        (PermissionReport{GuidedPermission::inputMonitoring, PermissionStatus::needsSetup,
            {Advice::refused}, true}));
}

TEST_F(PermissionGuideTest, asksForThePermissionAlone)
{
    events.set(false);

    guide.request(GuidedPermission::accessibility);
    EXPECT_EQ(report(GuidedPermission::accessibility).status, PermissionStatus::allowed);
    EXPECT_EQ(report(GuidedPermission::inputMonitoring).status, PermissionStatus::needsSetup);

    guide.request(GuidedPermission::inputMonitoring);
    EXPECT_EQ(report(GuidedPermission::inputMonitoring).status, PermissionStatus::allowed);
}

TEST_F(PermissionGuideTest, saysWhatTheSystemLacksAndAsksForNothing)
{
    events.set(false);
    events.reason = {Reason::lacking, "XTEST"};

    EXPECT_EQ(report(GuidedPermission::accessibility),
        (PermissionReport{GuidedPermission::accessibility, PermissionStatus::needsSetup,
            {Advice::systemLacks, "XTEST"}, false}));
    guide.request(GuidedPermission::accessibility);
    EXPECT_EQ(report(GuidedPermission::accessibility).status, PermissionStatus::needsSetup);
}

TEST_F(PermissionGuideTest, saysThatTheSessionGivesNothing)
{
    events.set(false);
    events.reason = {Reason::closedSession, {}};

    EXPECT_EQ(report(GuidedPermission::inputMonitoring),
        (PermissionReport{GuidedPermission::inputMonitoring, PermissionStatus::needsSetup,
            {Advice::closedSession}, false}));
}

TEST_F(PermissionGuideTest, leavesToTheUserWhatCannotBeReadInAdvance)
{
    EXPECT_EQ(automationReport(State::unknown),
        (PermissionReport{
            GuidedPermission::automation, PermissionStatus::manual, {Advice::none}, true}));
    EXPECT_EQ(automationReport(State::on),
        (PermissionReport{GuidedPermission::automation, PermissionStatus::manual,
            {Advice::restartBrowsers}, false}));
}

TEST_F(PermissionGuideTest, saysWhenNoProgramTellsAnything)
{
    EXPECT_EQ(automationReport(State::off),
        (PermissionReport{GuidedPermission::automation, PermissionStatus::needsSetup,
            {Advice::automationOff}, true}));
    EXPECT_EQ(automationReport(State::unavailable),
        (PermissionReport{GuidedPermission::automation, PermissionStatus::needsSetup,
            {Advice::automationUnavailable}, false}));
}

TEST_F(PermissionGuideTest, switchesAutomationOnAndSaysWhatIsLeftToDo)
{
    automationReport(State::off);

    guide.request(GuidedPermission::automation);

    EXPECT_EQ(report(GuidedPermission::automation).advice.kind, Advice::restartBrowsers);
}

TEST_F(PermissionGuideTest, hasAnotherTokenAfterEachThingThatMayChangeIt)
{
    std::vector<Uuid> tokens;
    const auto observation
        = guide.refreshToken().subscribe([&](const Uuid& token) { tokens.push_back(token); });
    const auto renews = [&](const std::function<void()>& action) {
        const auto before = guide.refreshToken().value();
        action();
        return guide.refreshToken().value() != before && tokens.back() != before;
    };

    EXPECT_TRUE(renews([&] { guide.refresh(); }));
    EXPECT_TRUE(renews([&] { guide.request(GuidedPermission::inputMonitoring); }));
    EXPECT_TRUE(renews([&] { events.notify(); }));
    EXPECT_TRUE(renews([&] { automation.refresh(); }));
    EXPECT_FALSE(renews([] {}));
}

} // namespace
} // namespace brindlex
