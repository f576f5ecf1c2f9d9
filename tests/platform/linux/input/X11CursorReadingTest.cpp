#include "platform/linux/input/X11CursorReading.h"

#include "support/screen/VirtualDesktop.h"
#include "support/windows/CursorWindow.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex {
namespace {

/// All the names of cursors that say that something is about to be resized.
const std::vector<std::string> resizeNames{"resizeLeftRight", "resizeUpDown", "resizeLeft",
    "resizeRight", "resizeUp", "resizeDown", "columnResize", "columnResizeLeft",
    "columnResizeRight", "columnResizeLeftRight", "rowResize", "rowResizeUp", "rowResizeDown",
    "rowResizeUpDown"};

class X11CursorReadingTest : public testing::Test {
protected:
    std::uint64_t identityOfShown()
    {
        const auto shown = cursor.currentSystem();
        return shown ? shown->identity : 0;
    }

    /// The name of the cursor whose looks have the one that is shown; empty for none.
    std::string nameOfShown()
    {
        const auto identity = identityOfShown();
        std::string found;
        for (const auto& name : resizeNames)
            for (const auto& look : cursor.looks(name))
                if (identity != 0 && look.identity == identity)
                    found += (found.empty() ? "" : "+") + name;
        return found;
    }

    VirtualDesktop desktop{{.windowManager = WindowManager::none, .sessionBus = false}};
    XConnection server;
    CursorWindow window{server};
    X11Connection connection;
    X11CursorReading cursor{connection};
};

TEST_F(X11CursorReadingTest, knowsTheNamesOfTheThemes)
{
    const std::vector<std::pair<std::string, std::string>> table{{"ew-resize", "resizeLeftRight"},
        {"sb_h_double_arrow", "resizeLeftRight"}, {"size_hor", "resizeLeftRight"},
        {"ns-resize", "resizeUpDown"}, {"sb_v_double_arrow", "resizeUpDown"},
        {"size_ver", "resizeUpDown"}, {"w-resize", "resizeLeft"}, {"left_side", "resizeLeft"},
        {"e-resize", "resizeRight"}, {"right_side", "resizeRight"}, {"n-resize", "resizeUp"},
        {"top_side", "resizeUp"}, {"s-resize", "resizeDown"}, {"bottom_side", "resizeDown"},
        {"col-resize", "columnResize"}, {"split_h", "columnResize"}, {"row-resize", "rowResize"},
        {"split_v", "rowResize"}, {"nwse-resize", "columnResizeLeftRight"},
        {"bottom_right_corner", "columnResizeLeftRight"}, {"size_fdiag", "columnResizeLeftRight"},
        {"nesw-resize", "rowResizeUpDown"}, {"bottom_left_corner", "rowResizeUpDown"},
        {"size_bdiag", "rowResizeUpDown"}};
    for (const auto& [inTheme, name] : table) {
        window.show(cursorGlyph::leftPointer, inTheme);
        EXPECT_EQ(nameOfShown(), name) << inTheme;
    }
}

TEST_F(X11CursorReadingTest, takesNoOtherCursorForOneThatResizes)
{
    for (const std::string inTheme : {"left_ptr", "default", "text", "xterm", "hand2", "pointer",
             "watch", "crosshair", "grabbing", "EW-RESIZE", "ew-resize ", "ew"}) {
        window.show(cursorGlyph::leftPointer, inTheme);
        EXPECT_NE(identityOfShown(), 0U) << inTheme;
        EXPECT_EQ(nameOfShown(), "") << inTheme;
    }
}

TEST_F(X11CursorReadingTest, comparesACursorWithoutANameByItsPicture)
{
    window.show(cursorGlyph::handTwo, "");
    const auto hand = cursor.currentSystem();
    ASSERT_TRUE(hand);
    EXPECT_EQ(hand->identity, 0U);

    window.show(cursorGlyph::horizontalDoubleArrow, "");
    const auto arrow = cursor.currentSystem();
    ASSERT_TRUE(arrow);
    EXPECT_NE(arrow->picture, hand->picture);
    EXPECT_EQ(nameOfShown(), "");
    window.show(cursorGlyph::handTwo, "");
    EXPECT_EQ(cursor.currentSystem(), hand);
}

TEST_F(X11CursorReadingTest, hasAPictureOfFourBytesForEachPixel)
{
    window.show(cursorGlyph::leftPointer, "left_ptr");

    const auto arrow = cursor.currentSystem();

    ASSERT_TRUE(arrow);
    EXPECT_EQ(double(arrow->picture.size()), 4 * arrow->size.width * arrow->size.height);
    EXPECT_GE(arrow->hotSpot.x, 0);
    EXPECT_LT(arrow->hotSpot.x, arrow->size.width);
    EXPECT_GE(arrow->hotSpot.y, 0);
    EXPECT_LT(arrow->hotSpot.y, arrow->size.height);
}

TEST_F(X11CursorReadingTest, survivesAnyName)
{
    for (const auto& name : {std::string(60'000, 'x'), std::string("\xff\xfe\x80"),
             std::string("ew-resize\n"), std::string("“ew-resize”")}) {
        window.show(cursorGlyph::leftPointer, name);
        EXPECT_NE(identityOfShown(), 0U);
        EXPECT_EQ(nameOfShown(), "");
    }
}

TEST_F(X11CursorReadingTest, seesNothingOnceTheServerHasGone)
{
    window.show(cursorGlyph::leftPointer, "left_ptr");
    ASSERT_TRUE(cursor.currentSystem());

    desktop.endDisplayServer();

    EXPECT_EQ(cursor.currentSystem(), std::nullopt);
}

TEST(X11CursorReading, seesNothingOnAServerThatTellsNoCursors)
{
    const VirtualDesktop desktop(
        {.windowManager = WindowManager::none, .sessionBus = false, .disabledExtension = "XFIXES"});
    X11Connection connection;
    X11CursorReading cursor(connection);

    EXPECT_EQ(cursor.currentSystem(), std::nullopt);
    EXPECT_TRUE(connection.isAlive());
}

} // namespace
} // namespace brindlex
