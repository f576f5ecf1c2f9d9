#include "desktop/ProgramDesk.h"
#include "support/screen/Screenshot.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace brindlex {
namespace {

class Overlay : public testing::Test {
protected:
    Overlay()
    {
        desk.applyRules({{"Alpha", german}, {"Beta", russian}});
        desk.windows.place(alpha.window(), {340, 200, 600, 400});
        desk.windows.place(beta.window(), {10, 30, 200, 100});
        // An application without a rule is in front, so that nothing is shown at the start.
        desk.windows.activate(gamma.window());
        program.emplace(desk.desktop);
        EXPECT_TRUE(program->launches()) << program->report();
    }

    /// The window of the overlay, once it is on the screen.
    std::optional<xcb_window_t> shown()
    {
        std::vector<xcb_window_t> overlays;
        eventually([&] {
            overlays = desk.windows.unmanagedOf(program->process());
            return !overlays.empty();
        });
        EXPECT_LE(overlays.size(), 1u);
        return overlays.empty() ? std::nullopt : std::optional(overlays.front());
    }

    bool isGone() const
    {
        return eventually([&] { return desk.windows.unmanagedOf(program->process()).empty(); });
    }

    ProgramDesk desk;
    TypingWindow alpha{desk.windows, "Alpha"};
    TypingWindow beta{desk.windows, "Beta"};
    TypingWindow gamma{desk.windows, "Gamma"};
    std::optional<RunningProgram> program;
};

TEST_F(Overlay, appearsInTheMiddleOfTheScreenAndGoes)
{

    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    const auto overlay = shown();
    ASSERT_TRUE(overlay) << program->report();
    const auto area = desk.windows.areaOf(*overlay);

    EXPECT_LE(std::abs(area.centreX() - 640), 1) << area.x << " " << area.width;
    EXPECT_LE(std::abs(area.centreY() - 400), 1) << area.y << " " << area.height;
    EXPECT_TRUE(isGone()) << program->report();
}

TEST_F(Overlay, takesNeitherFocusNorKeys)
{
    ASSERT_TRUE(desk.windows.activate(beta.window()));
    ASSERT_TRUE(shown()) << program->report();
    const auto focused = desk.windows.focused();

    desk.input.type("a");
    EXPECT_TRUE(beta.receives("ф")) << beta.text();
    EXPECT_EQ(desk.windows.active(), beta.window());
    EXPECT_EQ(desk.windows.focused(), focused);
    EXPECT_TRUE(isGone());
    EXPECT_EQ(desk.windows.focused(), focused);
}

TEST_F(Overlay, letsClicksThrough)
{
    const auto clicksWhileItIsShown = [&] {
        if (!desk.windows.activate(alpha.window()) || !isGone()
            || !desk.windows.activate(beta.window()))
            return false;
        const auto overlay = shown();
        desk.input.click(640, 400);
        return overlay && desk.windows.isOnScreen(*overlay);
    };
    ASSERT_TRUE(eventually(clicksWhileItIsShown)) << program->report();

    EXPECT_TRUE(eventually([&] { return desk.windows.active() == alpha.window(); }));
}

TEST_F(Overlay, isLegibleOverTheWindowBelow)
{
    const ScreenArea middle{540, 360, 200, 80};
    const Screenshot before(desk.server, middle);

    ASSERT_TRUE(desk.windows.activate(beta.window()));
    ASSERT_TRUE(shown()) << program->report();

    EXPECT_TRUE(eventually([&] {
        return Screenshot(desk.server, middle).differencesFrom(before) > 200 * 80 / 2;
    })) << program->report();
}

TEST_F(Overlay, doesNotAppearWhenTheSourceStays)
{
    ASSERT_TRUE(desk.windows.activate(alpha.window()));
    ASSERT_TRUE(shown()) << program->report();
    ASSERT_TRUE(isGone()) << program->report();

    ASSERT_TRUE(desk.windows.activate(gamma.window()));
    ASSERT_TRUE(desk.windows.activate(alpha.window()));

    EXPECT_TRUE(throughout(std::chrono::milliseconds{300},
        [&] { return desk.windows.unmanagedOf(program->process()).empty(); }));
}

} // namespace
} // namespace brindlex
