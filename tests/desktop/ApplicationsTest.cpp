#include "desktop/MouseFixture.h"
#include "desktop/PlayedHand.h"

#include "platform/VirtualKey.h"
#include "support/applications/RealApplication.h"

namespace brindlex {
namespace {

using namespace std::chrono_literals;

/// What the running program does with the mouse in programs that people use.
class Applications : public Mouse, public testing::WithParamInterface<std::string> {
protected:
    Applications() { desk.start(everything()); }

    void open(const RealApplication::Start& start)
    {
        application.emplace(desk.desktop, desk.windows, start);
        const auto area = desk.windows.areaOf(application->window());
        hand.pointAt(area.centreX(), area.y + area.height * 2 / 5);
    }

    void go(double x) const
    {
        drag(backButton, x, 0);
        desk.mouse.release(backButton);
    }
    void goBack() const { go(-60); }
    void goForward() const { go(60); }

    bool becomes(const std::string& name, const std::function<bool(int)>& isRight) const
    {
        return eventually([&] {
            const auto number = application->number(name);
            return number && isRight(*number);
        });
    }

    PlayedHand hand{desk};
    std::optional<RealApplication> application;
};

const auto name = [](const auto& instance) { return instance.param; };

/// Those that scroll in both directions.
class ScrolledApplications : public Applications {
protected:
    ScrolledApplications()
    {
        const bool isBrowser = GetParam() == "chromium" || GetParam() == "firefox";
        open(isBrowser ? browserWindow(desk.desktop, GetParam()) : toolkitWindow(GetParam()));
    }

    /// Turns the wheel notch by notch until each has arrived.
    void turnAlong(const std::string& axis) const
    {
        for (int notch = 0; notch < 3; ++notch) {
            const int before = application->number(axis).value_or(0);
            desk.mouse.turnWheel(1);
            EXPECT_TRUE(becomes(axis, [&](int position) { return position > before; }))
                << application->title();
        }
    }
};

TEST_P(ScrolledApplications, goByTheWheelWithShiftWhereTheyGoWithoutTheProgram)
{
    // Qt knows no meaning of Shift; all others turn the wheel sideways with it.
    const bool turns = GetParam() != "qt6";
    desk.keyboard.press(keycode::shift);
    desk.settle();
    turnAlong(turns ? "x" : "y");
    desk.keyboard.release(keycode::shift);
    desk.settle();

    EXPECT_EQ(application->number(turns ? "y" : "x"), 0);
    turnAlong("y");
}

INSTANTIATE_TEST_SUITE_P(
    Of, ScrolledApplications, testing::Values("gtk3", "gtk4", "qt6", "chromium", "firefox"), name);

/// Those that know where they were before.
class BrowsingApplications : public Applications {
protected:
    /// Opens it and goes from the first place to the second, as a user does.
    void openSecondPlace()
    {
        if (GetParam() == "thunar") {
            const auto folder = desk.desktop.home() / "one";
            std::filesystem::create_directories(folder);
            open({{"thunar", folder.string()}, {}, "one"});
            desk.keyboard.press(keycode::alt);
            desk.keyboard.stroke(keycode::up);
            desk.keyboard.release(keycode::alt);
        } else {
            open(browserWindow(desk.desktop, GetParam()));
            desk.mouse.click(leftButton);
        }
        ASSERT_TRUE(application->shows(second())) << application->title();
        desk.settle();
    }

    std::string second() const { return GetParam() == "thunar" ? "home" : "two"; }
};

TEST_P(BrowsingApplications, goBackAndForwardByDrags)
{
    openSecondPlace();

    goBack();
    EXPECT_TRUE(application->shows("one")) << application->title();
    goForward();
    EXPECT_TRUE(application->shows(second())) << application->title();
}

INSTANTIATE_TEST_SUITE_P(
    Of, BrowsingApplications, testing::Values("chromium", "firefox", "thunar"), name);

/// Those with a text.
using EditingApplications = Applications;

TEST_P(EditingApplications, areLeftAsTheyAreByGoingBackAndForward)
{
    open(toolkitWindow(GetParam()));
    const auto area = desk.windows.areaOf(application->window());
    hand.pointAt(area.centreX(), area.y + area.height - 30);
    const auto before = application->title();

    goForward();
    goBack();
    goForward();
    desk.settle();

    EXPECT_TRUE(throughout(200ms, [&] { return application->title() == before; }))
        << application->title() << " after " << before;
    // The title follows what is typed.
    desk.keyboard.stroke(keycode::right);
    EXPECT_TRUE(becomes("cursor", [](int cursor) { return cursor == 8; })) << application->title();
}

INSTANTIATE_TEST_SUITE_P(Of, EditingApplications, testing::Values("gtk3", "gtk4", "qt6"), name);

/// One whose menu bar opens by Alt alone.
using MenuApplications = Applications;

TEST_P(MenuApplications, keepTheirMenusClosedWhereTheProgramUsedTheModifier)
{
    auto config = everything();
    config.click.bindings = {click(
        MouseButton::button5, ModifierSet::option, MouseAction::SendKeystroke{virtualKey::a, {}})};
    config.gesture.bindings.clear();
    desk.set(config);
    open(toolkitWindow(GetParam()));
    const auto clickWithAlt = [&](int button) {
        desk.keyboard.press(keycode::alt);
        desk.settle();
        desk.mouse.click(button);
        desk.settle();
        desk.keyboard.release(keycode::alt);
        desk.settle();
    };

    clickWithAlt(forwardButton);
    EXPECT_TRUE(application->shows("x=0 y=0 cursor=8 menu=0")) << application->title();
    EXPECT_TRUE(throughout(200ms, [&] { return application->number("menu") == 0; }));
    // Alone it opens the menus.
    desk.keyboard.stroke(keycode::alt);
    EXPECT_TRUE(becomes("menu", [](int menu) { return menu == 1; })) << application->title();
}

INSTANTIATE_TEST_SUITE_P(Of, MenuApplications, testing::Values("qt6"), name);

} // namespace
} // namespace brindlex
