#include "eventtap/GlobalEventTap.h"

#include "platform/simulated/SimulatedEventPermissions.h"
#include "platform/simulated/SimulatedInput.h"
#include "platform/simulated/SimulatedKeyboard.h"
#include "platform/simulated/SimulatedMouse.h"
#include "platform/simulated/SimulatedProgramActivation.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;

const EventTriggers sideButton{{{3, {}}}, {}, false};
const EventTriggers middleButton{{{2, {}}}, {}, false};
const EventTriggers forwardButton{{{4, {}}}, {}, false};

EventVerdict swallowing(const Event&) { return EventVerdict::swallow; }
EventVerdict passing(const Event&) { return EventVerdict::pass; }

class GlobalEventTapInterestsTest : public testing::Test {
protected:
    SimulatedInput input{SimulatedInput::TapPlace::devices};
    SimulatedEventPermissions permissions;
    SimulatedProgramActivation activation;
    SimulatedMouse mouse{input};
    GlobalEventTap tap{input, permissions, activation};
};

TEST_F(GlobalEventTapInterestsTest, changeForOneSubscriberAlone)
{
    const auto first = tap.subscribe(mouseButtonMaskOf(2), swallowing, sideButton);
    tap.subscribe(mouseButtonMaskOf(2), passing, middleButton);

    tap.setTriggers(first, forwardButton);

    EXPECT_EQ(mouse.press(3), EventVerdict::pass);
    mouse.release(3);
    EXPECT_EQ(mouse.press(2), EventVerdict::swallow) << "as the second still asks for it";
    mouse.release(2);
    EXPECT_EQ(mouse.press(4), EventVerdict::swallow);
}

TEST_F(GlobalEventTapInterestsTest, changeForNobodyUnderAnIdentifierThatIsNotKnown)
{
    tap.subscribe(mouseButtonMaskOf(2), swallowing, sideButton);

    tap.setTriggers(Uuid::random(), forwardButton);

    EXPECT_EQ(mouse.press(4), EventVerdict::pass);
    EXPECT_EQ(mouse.press(3), EventVerdict::swallow);
}

TEST_F(GlobalEventTapInterestsTest, changedWithoutATapCountForTheNextOne)
{
    const auto id = tap.subscribe(mouseButtonMaskOf(2), swallowing, sideButton);
    permissions.set(false);
    permissions.notify();

    tap.setTriggers(id, forwardButton);

    EXPECT_FALSE(tap.isLive());
    permissions.set(true);
    permissions.notify();
    EXPECT_EQ(mouse.press(3), EventVerdict::pass);
    EXPECT_EQ(mouse.press(4), EventVerdict::swallow);
}

class GlobalEventTapsLifeTest : public testing::Test {
protected:
    RecordedLog log;
    SimulatedJournal journal;
    SimulatedInput input{SimulatedInput::TapPlace::session, &journal};
    SimulatedEventPermissions permissions;
    SimulatedProgramActivation activation;
    GlobalEventTap tap{input, permissions, activation};
};

TEST_F(GlobalEventTapsLifeTest, isSwitchedOffBeforeItGoes)
{
    const auto id = tap.subscribe(eventMask(EventType::keyDown), passing);
    tap.subscribe(eventMask(EventType::scrollWheel), passing);
    tap.unsubscribe(id);
    permissions.set(false);
    permissions.notify();

    EXPECT_EQ(journal.entries(),
        (Lines{"tap 0x400", "tap on", "tap off", "tap ends", "tap 0x400400", "tap on", "tap off",
            "tap ends", "tap 0x400000", "tap on", "tap off", "tap ends"}));
}

TEST_F(GlobalEventTapsLifeTest, doesNotBeginAgainByWordOfATapThatIsGone)
{
    tap.subscribe(eventMask(EventType::keyDown), swallowing);
    const auto handler = input.newestHandler();
    permissions.set(false);
    permissions.notify();
    log.takeLines();
    journal.take();

    for (const auto type : {EventType::tapDisabledByTimeout, EventType::tapDisabledByUserInput})
        EXPECT_EQ(handler({type, {}, 0, {}}), EventVerdict::pass);

    EXPECT_EQ(log.lines(), Lines{});
    EXPECT_EQ(journal.entries(), Lines{});
}

} // namespace
} // namespace brindlex
