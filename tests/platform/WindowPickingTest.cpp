#include "platform/WindowPicking.h"

#include "platform/linux/panels/X11WindowPicking.h"
#include "platform/simulated/SimulatedWindowPicking.h"
#include "support/basics/RecordedLog.h"
#include "support/hardware/Keycodes.h"
#include "support/hardware/PlayedInput.h"
#include "support/locks/InputGrab.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/DesktopWindows.h"
#include "support/windows/PlainWindow.h"

#include <gtest/gtest.h>

#include <unistd.h>
#include <vector>

namespace brindlex {
namespace {

using Application = std::optional<RunningApplication>;

/// A user of a simulated computer.
class SimulatedPickDesk {
public:
    WindowPicking& picking() { return picking_; }
    bool isPicking() const { return picking_.isPicking(); }
    void clickWindow()
    {
        picking_.click(RunningApplication{.bundleIdentifier = "wmclass:Strange"});
    }
    void pickByKeyboard() { clickWindow(); }
    void clickDesktop() { picking_.click({}); }
    void clickOwnWindow() { clickDesktop(); }
    void clickSecondButton() { clickDesktop(); }
    void pressEscape() { clickDesktop(); }
    bool hasWindowSeenClicks() const { return false; }
    bool until(const std::function<bool()>& condition) const { return condition(); }

private:
    SimulatedWindowPicking picking_;
};

/// A window without an entry in the menus on a real screen, and one of this program.
class RealPickDesk {
public:
    RealPickDesk()
    {
        desktop_.place(strange_.window(), {100, 100, 200, 120});
        desktop_.place(own_.window(), {500, 100, 200, 120});
        EXPECT_TRUE(loopUntil([&] {
            return desktop_.areaOf(strange_.window()).x >= 100
                && desktop_.areaOf(own_.window()).x >= 500;
        }));
        const std::uint32_t mask = XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE
            | XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE;
        xcb_change_window_attributes(server_.get(), strange_.window(), XCB_CW_EVENT_MASK, &mask);
        server_.sync();
    }

    WindowPicking& picking() { return picking_; }
    bool isPicking() const { return isAllInputTaken(server_); }
    void clickWindow() const { click(strange_.window()); }
    void clickOwnWindow() const { click(own_.window()); }
    void clickDesktop() const { input_.click(900, 700); }
    void clickSecondButton() const { click(strange_.window(), 3); }
    void pressEscape() const { press(keycode::escape); }
    /// From beside the window into it.
    void pickByKeyboard() const
    {
        const auto area = desktop_.areaOf(strange_.window());
        input_.movePointer(area.x - 20, area.y - 40);
        for (int step = 0; step < 6; ++step) {
            press(keycode::right);
            press(keycode::down);
        }
        press(keycode::enter);
    }
    /// Whether anything of the input has reached the window.
    bool hasWindowSeenClicks() const
    {
        server_.sync();
        bool hasSeen = false;
        while (auto* const event = xcb_poll_for_event(server_.get())) {
            const auto type = event->response_type & 0x7f;
            hasSeen = hasSeen || (type >= XCB_KEY_PRESS && type <= XCB_BUTTON_RELEASE);
            std::free(event);
        }
        return hasSeen;
    }
    bool until(const std::function<bool()>& condition) const { return loopUntil(condition); }

private:
    void click(xcb_window_t window, std::uint8_t button = 1) const
    {
        const auto area = desktop_.areaOf(window);
        input_.click(area.centreX(), area.centreY(), button);
    }
    void press(std::uint8_t key) const
    {
        input_.pressKey(key);
        input_.releaseKey(key);
    }

    XConnection server_;
    DesktopWindows desktop_{server_};
    PlayedInput input_{server_};
    PlainWindow strange_{server_, {.wmClass = wmClass("Strange")}};
    PlainWindow own_{
        server_, {.wmClass = wmClass("Own"), .process = static_cast<std::uint32_t>(::getpid())}};
    X11Connection connection_;
    X11ActiveWindow activeWindow_{connection_};
    DesktopEntries entries_{{}, {}};
    X11RunningApplications applications_{connection_, activeWindow_, entries_};
    X11WindowPicking picking_{applications_};
};

template <typename Desk>
class WindowPickingContract : public testing::Test {
protected:
    bool begins()
    {
        picks.clear();
        subscription = desk.picking().pick([this](const Application& found) {
            EXPECT_FALSE(desk.isPicking());
            picks.push_back(found ? found->bundleIdentifier.value_or("nameless") : "nothing");
        });
        return desk.until([&] { return desk.isPicking(); });
    }
    bool ends()
    {
        return desk.until([&] { return !picks.empty(); });
    }

    RecordedLog log;
    Desk desk;
    std::vector<std::string> picks;
    Subscription subscription;
};

using PickDesks = testing::Types<SimulatedPickDesk, RealPickDesk>;
TYPED_TEST_SUITE(WindowPickingContract, PickDesks);

using Picks = std::vector<std::string>;

TYPED_TEST(WindowPickingContract, findsTheApplicationOfTheWindowThatIsClicked)
{
    ASSERT_TRUE(this->begins());

    this->desk.clickWindow();

    ASSERT_TRUE(this->ends());
    EXPECT_EQ(this->picks, Picks{"wmclass:Strange"});
    EXPECT_FALSE(this->desk.hasWindowSeenClicks());
}

TYPED_TEST(WindowPickingContract, isDoneByTheKeyboardAlone)
{
    ASSERT_TRUE(this->begins());

    this->desk.pickByKeyboard();

    ASSERT_TRUE(this->ends());
    EXPECT_EQ(this->picks, Picks{"wmclass:Strange"});
    EXPECT_FALSE(this->desk.hasWindowSeenClicks());
}

TYPED_TEST(WindowPickingContract, findsNothingWhereTheUserPicksNone)
{
    using Desk = TypeParam;
    for (const auto act : {&Desk::pressEscape, &Desk::clickDesktop, &Desk::clickSecondButton,
             &Desk::clickOwnWindow}) {
        ASSERT_TRUE(this->begins());

        (this->desk.*act)();

        ASSERT_TRUE(this->ends());
        EXPECT_EQ(this->picks, Picks{"nothing"});
    }
    EXPECT_FALSE(this->desk.hasWindowSeenClicks());
}

TYPED_TEST(WindowPickingContract, givesAllBackWithTheEndOfTheSubscription)
{
    ASSERT_TRUE(this->begins());

    this->subscription.reset();

    EXPECT_TRUE(this->desk.until([&] { return !this->desk.isPicking(); }));
    this->desk.clickDesktop();
    EXPECT_EQ(this->picks, Picks{});
}

TYPED_TEST(WindowPickingContract, endsThePickThatGoesOnWithTheNext)
{
    ASSERT_TRUE(this->begins());
    auto first = std::exchange(this->subscription, Subscription());
    ASSERT_TRUE(this->begins());

    first.reset();
    this->desk.clickWindow();

    ASSERT_TRUE(this->ends());
    EXPECT_EQ(this->picks, Picks{"wmclass:Strange"});
}

class RealWindowPicking : public WindowPickingContract<RealPickDesk> { };

TEST_F(RealWindowPicking, waitsForAProgramThatHasThePointerForAMoment)
{
    {
        const InputGrab menu({.keyboard = false});
        subscription = desk.picking().pick([](const Application&) { FAIL(); });
    }
    EXPECT_TRUE(desk.until([&] { return desk.isPicking(); }));
}

TEST_F(RealWindowPicking, findsNothingWhereAnotherProgramKeepsTheInput)
{
    const InputGrab locker({});
    subscription = desk.picking().pick([this](const Application& found) {
        EXPECT_EQ(found, std::nullopt);
        picks.push_back("nothing");
    });

    ASSERT_TRUE(ends());
    EXPECT_EQ(log.lines(),
        std::vector<std::string>{"WARN [ui] No window can be picked: another program keeps the "
                                 "pointer or the keyboard"});
}

} // namespace
} // namespace brindlex
