#include "platform/linux/panels/X11WindowUse.h"

#include "support/loops/LoopUntil.h"
#include "support/screen/DesktopWindows.h"
#include "support/windows/PlainWindow.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Windows = std::vector<std::uint32_t>;

/// While a test activates windows nobody runs the loop, as while the program is busy.
class X11WindowUseTest : public testing::Test {
protected:
    xcb_window_t open(const std::string& title)
    {
        opened.push_back(std::make_unique<PlainWindow>(
            server, PlainWindow::Claims{.wmClass = wmClass("Editor"), .title = title}));
        EXPECT_TRUE(windows.activate(opened.back()->window()));
        return opened.back()->window();
    }

    /// Whether the windows come into this order, from whichever they are given in.
    testing::AssertionResult becomes(const Windows& expected)
    {
        auto given = expected;
        std::ranges::sort(given);
        if (loopUntil(
                [&] { return use->recent().ordered(given) == expected; }, std::chrono::seconds(3)))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << testing::PrintToString(use->recent().ordered(given))
                                           << " instead of " << testing::PrintToString(expected);
    }

    XConnection server;
    DesktopWindows windows{server};
    X11Connection connection;
    std::vector<std::unique_ptr<PlainWindow>> opened;
    std::optional<X11WindowUse> use;
};

TEST_F(X11WindowUseTest, missesNoWindowThatWasInFrontForAMoment)
{
    const auto first = open("First");
    const auto second = open("Second");
    const auto third = open("Third");
    use.emplace(connection);

    ASSERT_TRUE(windows.activate(first));
    ASSERT_TRUE(windows.activate(second));
    ASSERT_TRUE(windows.activate(third));

    EXPECT_TRUE(becomes({third, second, first}));
}

TEST_F(X11WindowUseTest, knowsWindowsThatOpenOneRightAfterTheOther)
{
    const auto old = open("Old");
    use.emplace(connection);

    const auto first = open("First");
    const auto second = open("Second");
    const auto third = open("Third");

    EXPECT_TRUE(becomes({third, second, first, old}));
}

TEST_F(X11WindowUseTest, followsNewWindowsFromThenOn)
{
    use.emplace(connection);
    const auto first = open("First");
    const auto second = open("Second");
    ASSERT_TRUE(becomes({second, first}));

    ASSERT_TRUE(windows.activate(first));
    EXPECT_TRUE(becomes({first, second}));
    ASSERT_TRUE(windows.activate(second));
    EXPECT_TRUE(becomes({second, first}));
}

TEST_F(X11WindowUseTest, takesWhatGetsTheKeysBackFromAMenuForNoChange)
{
    const auto first = open("First");
    const auto second = open("Second");
    use.emplace(connection);
    ASSERT_TRUE(windows.activate(first));
    ASSERT_TRUE(windows.activate(second));
    xcb_grab_keyboard_unchecked(server.get(), false, server.root(), XCB_CURRENT_TIME,
        XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    xcb_ungrab_keyboard(server.get(), XCB_CURRENT_TIME);
    server.sync();

    EXPECT_TRUE(becomes({second, first}));
}

} // namespace
} // namespace brindlex
