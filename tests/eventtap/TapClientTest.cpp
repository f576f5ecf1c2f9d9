#include "eventtap/TapClient.h"

#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedEventPermissions.h"
#include "platform/simulated/SimulatedInput.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "platform/simulated/SimulatedMouse.h"
#include "platform/simulated/SimulatedProgramActivation.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;
using Masks = std::vector<EventMask>;

constexpr EventMask presses = eventMask(EventType::otherMouseDown, EventType::otherMouseUp);
constexpr EventMask wheel = eventMask(EventType::scrollWheel);

/// A client whose manager notes what is asked of it and swallows all events.
class TapClientTest : public testing::Test {
protected:
    static EventTriggers button(std::int64_t number) { return {{{number, {}}}, {}, false}; }

    std::unique_ptr<TapClient> newClient()
    {
        TapClient::Manager manager{.name = "Manager",
            .start = [this] { calls.push_back("start"); },
            .reset = [this] { calls.push_back("reset"); },
            .receive =
                [this](const Event&) {
                    calls.push_back("receive");
                    return EventVerdict::swallow;
                }};
        return std::make_unique<TapClient>(
            TapEnvironment{tap, permissions, mainThread, activation}, manager, triggers.stream());
    }

    RecordedLog log;
    SimulatedClock clock;
    SimulatedMainThread mainThread{clock};
    SimulatedInput input{SimulatedInput::TapPlace::devices};
    SimulatedEventPermissions permissions;
    SimulatedProgramActivation activation;
    SimulatedMouse mouse{input};
    GlobalEventTap tap{input, permissions, activation};
    Observable<EventTriggers> triggers{button(3)};
    Lines calls;
    std::unique_ptr<TapClient> client = newClient();
};

TEST_F(TapClientTest, holdsNoPlaceBeforeItSubscribes)
{
    EXPECT_EQ(input.tapMasks(), Masks{});
    EXPECT_EQ(permissions.timesAsked, 0);
    EXPECT_EQ(calls, Lines{});
}

TEST_F(TapClientTest, keepsThePlaceThatHasTheMask)
{
    client->subscribe(presses);
    permissions.set(false);
    client->subscribe(presses);

    EXPECT_EQ(input.tapMasks(), Masks{presses});
    EXPECT_EQ(input.tapsMade(), 1U);
    EXPECT_EQ(calls, Lines{});
    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(TapClientTest, forgetsWhatWasBeforeAnotherMask)
{
    client->subscribe(presses);
    client->subscribe(wheel);

    EXPECT_EQ(input.tapMasks(), Masks{wheel});
    EXPECT_EQ(calls, Lines{"reset"});
}

TEST_F(TapClientTest, takesAPlaceBehindTheOthersForAnotherMask)
{
    client->subscribe(presses | wheel);
    tap.subscribe(
        presses,
        [this](const Event&) {
            calls.push_back("other");
            return EventVerdict::pass;
        },
        button(3));
    client->subscribe(presses);
    calls.clear();

    mouse.press(3);

    EXPECT_EQ(calls, (Lines{"other", "receive"}));
}

TEST_F(TapClientTest, givesUpItsPlaceWhereAPermissionIsMissingAndStartsLater)
{
    client->subscribe(presses);
    permissions.canListen = false;
    client->subscribe(wheel);

    EXPECT_EQ(input.tapMasks(), Masks{});
    EXPECT_EQ(calls, Lines{"reset"});
    EXPECT_EQ(log.lines(),
        Lines{"WARN [mouse] Manager: missing Accessibility or Input Monitoring permission; not "
              "starting"});
    mainThread.advance(1.999);
    EXPECT_EQ(calls, Lines{"reset"});
    mainThread.advance(0.001);
    EXPECT_EQ(calls, (Lines{"reset", "start"}));
    activation.becomeActive();
    EXPECT_EQ(calls, (Lines{"reset", "start", "start"}));
}

TEST_F(TapClientTest, startsNoMoreOnceItIsSubscribed)
{
    permissions.set(false);
    client->subscribe(presses);
    permissions.set(true);
    client->subscribe(presses);
    calls.clear();

    mainThread.advance(10);
    activation.becomeActive();

    EXPECT_EQ(calls, Lines{});
    EXPECT_EQ(input.tapMasks(), Masks{presses});
}

TEST_F(TapClientTest, startsNoMoreOnceItIsNotWanted)
{
    permissions.set(false);
    client->subscribe(presses);
    client->unsubscribe();
    calls.clear();

    mainThread.advance(10);
    activation.becomeActive();

    EXPECT_EQ(calls, Lines{});
}

TEST_F(TapClientTest, takesThePlaceAgainThatItGaveUp)
{
    client->subscribe(presses);
    client->unsubscribe();
    EXPECT_EQ(input.tapMasks(), Masks{});
    client->subscribe(presses);

    EXPECT_EQ(input.tapMasks(), Masks{presses});
    EXPECT_EQ(calls, Lines{"reset"});
}

TEST_F(TapClientTest, followsItsTriggersInThePlaceThatItHas)
{
    client->subscribe(presses);
    triggers.set(button(4));

    EXPECT_EQ(mouse.press(3), EventVerdict::pass);
    EXPECT_EQ(mouse.press(4), EventVerdict::swallow);
    EXPECT_EQ(input.tapsMade(), 1U);
}

TEST_F(TapClientTest, beginsWithTheNewestTriggers)
{
    triggers.set(button(4));
    client->subscribe(presses);

    EXPECT_EQ(mouse.press(3), EventVerdict::pass);
    EXPECT_EQ(mouse.press(4), EventVerdict::swallow);
}

TEST_F(TapClientTest, callsNothingAfterItsEndEvenForAnEventOnItsWay)
{
    tap.subscribe(
        presses,
        [this](const Event&) {
            client.reset();
            return EventVerdict::pass;
        },
        button(3));
    client->subscribe(presses);

    EXPECT_EQ(mouse.press(3), EventVerdict::pass);
    triggers.set(button(4));
    EXPECT_EQ(calls, Lines{});
    EXPECT_EQ(input.tapMasks(), Masks{presses});
}

TEST_F(TapClientTest, startsNothingAfterItsEnd)
{
    permissions.set(false);
    client->subscribe(presses);
    calls.clear();
    client.reset();

    mainThread.advance(10);
    activation.becomeActive();

    EXPECT_EQ(calls, Lines{});
}

} // namespace
} // namespace brindlex
