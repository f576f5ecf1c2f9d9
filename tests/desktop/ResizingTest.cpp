#include "desktop/MouseDesk.h"
#include "support/browsers/FakeElements.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

using namespace std::chrono_literals;
using Lines = MouseDesk::Lines;
using Position = EventLogWindow::Position;

constexpr auto timeToReconfigure = 20s;
/// A window that stands still for this long stands where it is to be.
constexpr auto restfulArea = 100ms;
/// How often a reply about an element may come too late for the press that asked.
constexpr int mostTries = 50;

/// A window manager whose windows are resized by the handle below their contents.
constexpr auto resizingConfiguration = R"(<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew><followMouse>no</followMouse></focus>
  <theme><name>Clearlooks</name><animateIconify>no</animateIconify></theme>
  <margins><top>2</top></margins>
  <mouse>
    <dragThreshold>1</dragThreshold>
    <context name="Bottom">
      <mousebind button="Left" action="Drag"><action name="Resize"><edge>bottom</edge></action></mousebind>
    </context>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
  </mouse>
</openbox_config>
)";

const Lines forwardClick{"press 9", "release 9"};

/// A user whose left button has gestures, in front of a window.
class Resizing : public testing::Test {
protected:
    Resizing()
    {
        write(desk.desktop.configFolder() / "openbox/rc.xml", resizingConfiguration);
        run({.command = {"openbox", "--reconfigure"}}, timeToReconfigure);
        const auto isRead = [&] {
            const auto workArea = desk.server.values(desk.server.root(), "_NET_WORKAREA");
            return workArea.size() > 1 && workArea[1] == 2;
        };
        EXPECT_TRUE(eventually(isRead)) << desk.desktop.output();
        window.emplace("Resized", ScreenArea{300, 200, 400, 300});
        const auto stands = [&] {
            const auto before = area();
            return throughout(restfulArea, [&] { return area() == before; });
        };
        EXPECT_TRUE(eventually(stands));
        MouseConfig config;
        for (const auto direction : allCases<MouseDirection>())
            config.gesture.bindings.push_back(
                gesture(MouseButton::left, {}, direction, MouseAction::Plain::forward));
        // With the wheel the mouse is away as a whole, so that one can see when the tap is there.
        config.scroll.smoothEnabled = true;
        desk.start(config);
        EXPECT_TRUE(eventually([&] { return desk.isAnyDeviceTaken(); })) << desk.program->report();
    }

    /// Drags with the left button from this point of the screen, and leaves it pressed.
    void holdAndDrag(Position start, double x, double y)
    {
        window->movePointer(start);
        ASSERT_EQ(window->pointer(), start);
        desk.settle();
        window->forget();
        desk.mouse.press(leftButton);
        // A motion in the same instant would be the server's before the press is anybody's.
        desk.settle();
        for (int step = 0; step < 10; ++step)
            desk.mouse.move(x / 10, y / 10);
        desk.settle();
    }
    void dragFrom(Position start, double x, double y)
    {
        holdAndDrag(start, x, y);
        desk.mouse.release(leftButton);
        desk.settle();
    }

    ScreenArea area() const { return desk.windows.areaOf(window->id()); }
    /// A point of the screen, counted from the corner of what is in the window.
    Position at(int x, int y) const { return {area().x + x, area().y + y}; }

    /// The buttons and keys that the window got.
    Lines input()
    {
        Lines lines;
        for (const auto& line : window->lines())
            if (line.starts_with("press") || line.starts_with("release") || line.starts_with("key"))
                lines.push_back(line);
        return lines;
    }

    testing::AssertionResult gets(const Lines& expected)
    {
        if (eventually([&] { return input() == expected; }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << testing::PrintToString(input()) << "\n"
                                           << desk.program->report();
    }

    testing::AssertionResult decides(const std::string& decision, Position point)
    {
        const auto beginning = "MouseGesture: left down decision decision=" + decision
            + " point=" + std::to_string(point.x) + ".0," + std::to_string(point.y) + ".0 cursor=";
        if (desk.program->logs(beginning))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << beginning << "\n" << desk.program->report();
    }

    /// Makes the window that of a program with a split view, whose divider is ten points wide.
    void showSplitView(const FakeElements& program) const
    {
        constexpr std::uint32_t frameRole = 23;
        constexpr std::uint32_t splitPaneRole = 53;
        constexpr std::uint32_t textRole = 61;
        const auto process = static_cast<std::uint32_t>(program.process());
        xcb_change_property(desk.server.get(), XCB_PROP_MODE_REPLACE, window->id(),
            desk.server.atom("_NET_WM_PID"), XCB_ATOM_CARDINAL, 32, 1, &process);
        desk.server.sync();
        const auto column = [&](int x, int width) {
            const auto corner = at(x, 0);
            return Rect{{double(corner.x), double(corner.y)}, {double(width), 300}};
        };
        program.offer({{frameRole, "frame", "", column(0, 400), -1},
            {splitPaneRole, "split pane", "", column(0, 400), 0},
            {textRole, "text", "", column(0, 194), 1},
            {textRole, "text", "", column(205, 194), 1}});
    }

    MouseDesk desk{{.accessibility = true}};
    std::optional<EventLogWindow> window;
};

TEST_F(Resizing, ofAWindowByItsEdgeIsLeftToTheWindowManager)
{
    const auto before = area();
    const auto handle = at(200, before.height + 3);

    holdAndDrag(handle, 0, 50);
    const ScreenArea grown{before.x, before.y, before.width, before.height + 50};
    // The hand goes on a little until what it drags has begun to follow.
    const auto follows = [&] {
        desk.mouse.move(1, 0);
        desk.mouse.move(-1, 0);
        desk.settle();
        return area() == grown;
    };
    EXPECT_TRUE(eventually(follows)) << area().height << desk.program->report();
    desk.mouse.release(leftButton);

    EXPECT_TRUE(eventually([&] { return window->held() == Lines{}; }));
    EXPECT_EQ(area(), grown);
    EXPECT_TRUE(decides("bypass reason=cursor", handle));
    EXPECT_TRUE(
        desk.program->logs("MouseGesture: bypass left gesture for resize cursor/window edge"));
    EXPECT_EQ(input(), Lines{});
}

TEST_F(Resizing, withinEightPointsOfAnEdgeIsLeftToTheApplication)
{
    const auto inside = at(395, 150);

    dragFrom(inside, -60, 0);

    EXPECT_TRUE(gets({"press 1", "release 1"}));
    EXPECT_TRUE(decides("bypass reason=windowEdge", inside));
}

TEST_F(Resizing, isNotMeantInTheMiddleOfAWindow)
{
    const auto middle = at(200, 150);

    dragFrom(middle, -60, 0);

    EXPECT_TRUE(gets(forwardClick));
    EXPECT_TRUE(decides("gesture reason=none", middle));
}

TEST_F(Resizing, ofASplitViewByItsDividerIsLeftToTheApplication)
{
    const FakeElements program;
    showSplitView(program);
    const auto divider = at(200, 150);
    const Lines plainClick{"press 1", "release 1"};

    // On a busy computer a reply may take longer than a press waits for it.
    for (int tries = 0; tries < mostTries && input() != plainClick; ++tries)
        dragFrom(divider, -60, 0);

    EXPECT_TRUE(gets(plainClick));
    EXPECT_TRUE(decides("bypass reason=axResizeControl", divider));
    const auto saysWhatItSaw = [&] {
        return std::ranges::any_of(desk.program->messages(), [](const std::string& message) {
            return message.ends_with(" ax=resizeControl=true roles=role=AXSplitter,"
                                     "description=split pane windowEdge=false");
        });
    };
    EXPECT_TRUE(eventually(saysWhatItSaw)) << desk.program->report();
}

TEST_F(Resizing, isNotMeantBesideTheDividerOfASplitView)
{
    const FakeElements program;
    showSplitView(program);
    const auto text = at(120, 150);

    dragFrom(text, -60, 0);

    EXPECT_TRUE(gets(forwardClick));
    EXPECT_TRUE(decides("gesture reason=none", text));
}

} // namespace
} // namespace brindlex
