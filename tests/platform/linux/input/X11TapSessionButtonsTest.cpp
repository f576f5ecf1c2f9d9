#include "platform/linux/input/X11TapSession.h"

#include "support/hardware/TappedDesktop.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;

/// The most that X can count.
constexpr int mostButtons = 255;
constexpr int firstSideButton = 8;

/// A mouse with a button for everything.
class X11TapSessionButtonsTest : public testing::Test {
protected:
    void tap(EventInterest interest)
    {
        tap_ = desktop_.tapping.createTap(interest.mask, {interest}, [this](const Event& event) {
            seen_.push_back(event.value(EventField::mouseEventButtonNumber));
            return EventVerdict::pass;
        });
        ASSERT_NE(tap_, nullptr);
        tap_->setEnabled(true);
        desktop_.settle();
    }

    /// Clicks with each button from the first side button on.
    void clickAll()
    {
        for (int button = firstSideButton; button <= mostButtons; ++button) {
            desktop_.mouse.click(button);
            desktop_.settle();
        }
    }

    /// What an application gets of the clicks up to this button.
    static Lines clicksUpTo(int last)
    {
        Lines expected;
        for (int button = firstSideButton; button <= last; ++button) {
            expected.push_back("press " + std::to_string(button));
            expected.push_back("release " + std::to_string(button));
        }
        return expected;
    }

    TappedDesktop desktop_{EventLogWindow::Protocol::core, {.mouseButtons = mostButtons}};
    std::vector<std::int64_t> seen_;
    std::unique_ptr<EventTap> tap_;
};

TEST_F(X11TapSessionButtonsTest, letsAllButtonsPassThatNobodyWants)
{
    tap({mouseButtonMask, EventTriggers{.buttons = {{2, {}}}}});

    clickAll();

    EXPECT_TRUE(desktop_.receives(clicksUpTo(mostButtons)));
    EXPECT_EQ(seen_, std::vector<std::int64_t>());
}

TEST_F(X11TapSessionButtonsTest, handsOnAllButtonsOfAMouseWhoseWheelIsTaken)
{
    tap({eventMask(EventType::scrollWheel), EventTriggers{.wheel = true}});

    clickAll();

    EXPECT_TRUE(desktop_.receives(clicksUpTo(mostButtons)));
    EXPECT_EQ(desktop_.window.held(), Lines{});
    EXPECT_EQ(desktop_.stream.sessionCount(), 1);
}

TEST_F(X11TapSessionButtonsTest, handsOnAllButtonsWhileAnotherIsHeld)
{
    tap({mouseButtonMask, EventTriggers{.buttons = {{2, {}}}}});
    desktop_.mouse.press(2);
    desktop_.settle();

    clickAll();
    desktop_.mouse.release(2);
    desktop_.settle();

    auto expected = clicksUpTo(mostButtons);
    expected.insert(expected.begin(), "press 2");
    expected.push_back("release 2");
    EXPECT_TRUE(desktop_.receives(expected));
    EXPECT_EQ(desktop_.window.held(), Lines{});
}

TEST_F(X11TapSessionButtonsTest, handsOnButtonsThatAreHeldTogether)
{
    tap({eventMask(EventType::scrollWheel), EventTriggers{.wheel = true}});
    const auto press = [&](int button) {
        desktop_.mouse.press(button);
        desktop_.settle();
    };
    const auto release = [&](int button) {
        desktop_.mouse.release(button);
        desktop_.settle();
    };

    press(9);
    press(20);
    press(1);
    press(200);
    release(20);
    release(9);
    press(10);
    release(10);
    release(200);
    release(1);

    EXPECT_TRUE(desktop_.receives({"press 9", "press 20", "press 1", "press 200", "release 20",
        "release 9", "press 10", "release 10", "release 200", "release 1"}));
    EXPECT_EQ(desktop_.window.held(), Lines{});
}

TEST_F(X11TapSessionButtonsTest, leavesTheButtonsThatItPlaysOnAsTheyWere)
{
    tap({eventMask(EventType::scrollWheel), EventTriggers{.wheel = true}});
    desktop_.mouse.click(200);
    desktop_.settle();
    desktop_.mouse.press(201);
    desktop_.settle();
    tap_.reset();
    desktop_.settle();
    desktop_.mouse.release(201);
    desktop_.settle();

    const XConnection server;
    xcb_test_fake_input(server.get(), XCB_BUTTON_PRESS, 10, XCB_CURRENT_TIME, 0, 0, 0, 0);
    xcb_test_fake_input(server.get(), XCB_BUTTON_RELEASE, 10, XCB_CURRENT_TIME, 0, 0, 0, 0);
    server.sync();

    EXPECT_TRUE(desktop_.receives(
        {"press 200", "release 200", "press 201", "release 201", "press 10", "release 10"}));
}

TEST_F(X11TapSessionButtonsTest, givesBackWhatAKilledProgramHadLent)
{
    const XConnection server;
    // The first devices of every server: the masters, then those of XTEST, pointers first.
    constexpr std::uint8_t playing = 4;
    const std::vector<std::uint8_t> lent{1, 2, 3, 4, 5, 6, 7, 9, 8, 200};
    const XReply<xcb_input_set_device_button_mapping_reply_t> reply(
        xcb_input_set_device_button_mapping_reply(server.get(),
            xcb_input_set_device_button_mapping(server.get(), playing, 10, lent.data()), nullptr));
    ASSERT_TRUE(reply && reply->status == 0);

    tap({eventMask(EventType::scrollWheel), EventTriggers{.wheel = true}});
    desktop_.mouse.click(10);
    desktop_.mouse.click(8);
    desktop_.settle();

    // The two that the user has exchanged stay so.
    EXPECT_TRUE(desktop_.receives({"press 10", "release 10", "press 9", "release 9"}));
}

} // namespace
} // namespace brindlex
