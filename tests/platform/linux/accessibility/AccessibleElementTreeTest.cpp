#include "platform/linux/accessibility/AccessibleElementTree.h"

#include "platform/posix/SerialQueue.h"
#include "support/basics/RecordedLog.h"
#include "support/browsers/FakeElements.h"
#include "support/screen/VirtualDesktop.h"
#include "support/windows/ApplicationWindow.h"

#include <gtest/gtest.h>

#include <chrono>
#include <unistd.h>

namespace brindlex {
namespace {

constexpr Seconds deskPatience = 20;
constexpr Point deskCentre{200, 150};

const std::vector<FakeElements::Element> dividedWindow{
    {23, "frame", "", {{50, 50}, {300, 200}}, -1},
    {53, "split pane", "", {{50, 50}, {300, 200}}, 0},
    {39, "panel", "", {{50, 50}, {140, 200}}, 1},
};

/// A desktop with a window of a program whose elements are read.
struct ElementDesk {
    explicit ElementDesk(std::optional<std::uint32_t> process = {}, Seconds time = deskPatience)
        : window(
            server, {.process = process.value_or(static_cast<std::uint32_t>(program.process()))}),
          tree(connection, queue, time)
    {
        window.show();
    }

    std::optional<std::string> roleAt(Point point)
    {
        const auto element = tree.elementAt(point, deskPatience);
        if (!element)
            return {};
        element->setMessagingTimeout(deskPatience);
        return element->role();
    }

    VirtualDesktop desktop{{.windowManager = WindowManager::none, .accessibility = true}};
    XConnection server;
    FakeElements program;
    ApplicationWindow window;
    X11Connection connection;
    SerialQueue queue{"elements"};
    AccessibleElementTree tree;
};

TEST(AccessibleElementTree, findsTheDividerOfASplitView)
{
    ElementDesk desk;
    desk.program.offer(dividedWindow);

    EXPECT_EQ(desk.roleAt(deskCentre), "AXSplitter");
    EXPECT_EQ(desk.roleAt({100, 100}), "AXGroup");
}

TEST(AccessibleElementTree, findsElementsOfProgramsThatDoNotKnowWhereTheirWindowIs)
{
    ElementDesk desk;
    desk.program.offer(dividedWindow, FakeElements::Behaviour::ofWindow);

    const auto element = desk.tree.elementAt({100, 100}, deskPatience);

    ASSERT_TRUE(element);
    element->setMessagingTimeout(deskPatience);
    EXPECT_EQ(element->role(), "AXGroup");
    EXPECT_EQ(element->position(), (Point{50, 50}));
    EXPECT_EQ(element->size(), (Size{140, 200}));
}

TEST(AccessibleElementTree, takesOfSeveralWindowsTheOneThatLiesThere)
{
    ElementDesk desk;
    desk.program.offer({
        {23, "frame", "", {{0, 0}, {1000, 700}}, -1},
        {16, "dialog", "", {{50, 50}, {300, 200}}, -1},
        {43, "push button", "", {{0, 0}, {1000, 700}}, 0},
        {7, "check box", "", {{190, 140}, {20, 20}}, 1},
    });

    EXPECT_EQ(desk.roleAt(deskCentre), "AXCheckBox");
}

TEST(AccessibleElementTree, knowsNothingOfTheDesktopItself)
{
    ElementDesk desk;
    desk.program.offer(dividedWindow);

    EXPECT_EQ(desk.tree.elementAt({900, 600}, deskPatience), nullptr);
    EXPECT_EQ(desk.tree.elementAt({-5, 1e9}, deskPatience), nullptr);
}

TEST(AccessibleElementTree, doesNotAskItsOwnProcess)
{
    ElementDesk desk(static_cast<std::uint32_t>(getpid()));

    EXPECT_EQ(desk.tree.elementAt(deskCentre, deskPatience), nullptr);
}

TEST(AccessibleElementTree, survivesProgramsThatReplyNonsense)
{
    ElementDesk desk;
    desk.program.offer(dividedWindow, FakeElements::Behaviour::garbage);
    EXPECT_EQ(desk.roleAt(deskCentre), std::nullopt);

    desk.program.offer(dividedWindow, FakeElements::Behaviour::circular);
    EXPECT_EQ(desk.roleAt(deskCentre), "AXWindow");

    desk.program.offer(dividedWindow, FakeElements::Behaviour::huge);
    const auto element = desk.tree.elementAt({100, 100}, deskPatience);
    ASSERT_TRUE(element);
    element->setMessagingTimeout(deskPatience);
    EXPECT_EQ(element->roleDescription(), std::string(64, 'x'));
}

TEST(AccessibleElementTree, waitsForAllRepliesTogetherNoLongerThanItsTime)
{
    ElementDesk desk({}, 0.06);
    desk.program.offer(dividedWindow, FakeElements::Behaviour::silent);
    const auto before = std::chrono::steady_clock::now();

    const auto element = desk.tree.elementAt(deskCentre, deskPatience);

    EXPECT_EQ(element, nullptr);
    // 0.06 s, on a machine that may be busy.
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(1));
}

TEST(AccessibleElementTree, isEmptyWithoutAnAccessibilityBusWhichIsLoggedOnce)
{
    const VirtualDesktop desktop({.windowManager = WindowManager::none});
    const RecordedLog log;
    const XConnection server;
    const ApplicationWindow window(server, {.process = 1});
    window.show();
    X11Connection connection;
    SerialQueue queue("elements");
    AccessibleElementTree tree(connection, queue, deskPatience);

    for (int attempt = 0; attempt < 3; ++attempt)
        EXPECT_EQ(tree.elementAt(deskCentre, deskPatience), nullptr);

    EXPECT_EQ(log.lines(),
        std::vector<std::string>{"INFO [mouse] No accessibility bus: the dividers of split views "
                                 "are found by the cursor alone"});
}

} // namespace
} // namespace brindlex
