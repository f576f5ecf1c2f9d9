#include "platform/CursorReading.h"

#include "platform/linux/input/X11CursorReading.h"
#include "platform/simulated/SimulatedCursor.h"
#include "support/screen/VirtualDesktop.h"
#include "support/windows/CursorWindow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace brindlex {
namespace {

class SimulatedMouseCursor {
public:
    SimulatedMouseCursor()
    {
        cursor_.own.reset();
        cursor_.named["resizeLeftRight"] = {sideways_};
        cursor_.named["resizeUpDown"] = {upright_};
    }

    CursorReading& cursor() { return cursor_; }
    void showArrow() { cursor_.shown = SimulatedCursor::arrow(); }
    void showResizeLeftRight() { cursor_.shown = sideways_; }
    void showResizeUpDown() { cursor_.shown = upright_; }

private:
    const CursorImage sideways_{2, {8, 4}, {16, 8}, "left right"};
    const CursorImage upright_{3, {4, 8}, {8, 16}, "up down"};
    SimulatedCursor cursor_;
};

/// The cursor of a real X server, over a window that says how it looks.
class X11MouseCursor {
public:
    X11MouseCursor() { showArrow(); }

    CursorReading& cursor() { return cursor_; }
    void showArrow() { window_.show(cursorGlyph::leftPointer, "left_ptr"); }
    void showResizeLeftRight()
    {
        window_.show(cursorGlyph::horizontalDoubleArrow, "sb_h_double_arrow");
    }
    void showResizeUpDown() { window_.show(cursorGlyph::verticalDoubleArrow, "ns-resize"); }

private:
    VirtualDesktop desktop_{{.windowManager = WindowManager::none, .sessionBus = false}};
    XConnection server_;
    CursorWindow window_{server_};
    X11Connection connection_;
    X11CursorReading cursor_{connection_};
};

template <typename Mouse>
class CursorReadingContract : public testing::Test {
protected:
    /// Whether what the user sees is the system's cursor of the name.
    bool shows(const std::string& name)
    {
        const auto shown = mouse.cursor().currentSystem();
        const auto looks = mouse.cursor().looks(name);
        return shown && std::ranges::any_of(looks, [&](const CursorImage& look) {
            return look.identity != 0 && look.identity == shown->identity;
        });
    }

    Mouse mouse;
};

using Mice = testing::Types<SimulatedMouseCursor, X11MouseCursor>;
class MouseNames {
public:
    template <typename Mouse>
    static std::string GetName(int)
    {
        return std::is_same_v<Mouse, X11MouseCursor> ? "X11" : "Simulated";
    }
};
TYPED_TEST_SUITE(CursorReadingContract, Mice, MouseNames);

TYPED_TEST(CursorReadingContract, readsOneCursorTwiceAsTheSame)
{
    const auto first = this->mouse.cursor().currentSystem();
    ASSERT_TRUE(first);
    EXPECT_GT(first->size.width, 0);
    EXPECT_GT(first->size.height, 0);
    EXPECT_FALSE(first->picture.empty());
    EXPECT_EQ(this->mouse.cursor().currentSystem(), first);

    this->mouse.showResizeUpDown();
    EXPECT_NE(this->mouse.cursor().currentSystem(), first);
    this->mouse.showArrow();
    EXPECT_EQ(this->mouse.cursor().currentSystem(), first);
}

TYPED_TEST(CursorReadingContract, tellsTheResizingCursorsApartByTheirLooks)
{
    EXPECT_FALSE(this->shows("resizeLeftRight"));
    EXPECT_FALSE(this->shows("resizeUpDown"));

    this->mouse.showResizeLeftRight();
    EXPECT_TRUE(this->shows("resizeLeftRight"));
    EXPECT_FALSE(this->shows("resizeUpDown"));

    this->mouse.showResizeUpDown();
    EXPECT_FALSE(this->shows("resizeLeftRight"));
    EXPECT_TRUE(this->shows("resizeUpDown"));
}

TYPED_TEST(CursorReadingContract, hasNoLookOfANameThatNoCursorHas)
{
    EXPECT_EQ(this->mouse.cursor().looks("arrowOfTime"), std::vector<CursorImage>());
    EXPECT_EQ(this->mouse.cursor().looks(""), std::vector<CursorImage>());
}

TYPED_TEST(CursorReadingContract, reportsNoOwnCursorWhereTheProgramHasSetNone)
{
    EXPECT_EQ(this->mouse.cursor().current(), std::nullopt);
}

} // namespace
} // namespace brindlex
