#include "platform/linux/panels/QtKeyablePanel.h"

#include "platform/linux/windows/WindowsServer.h"
#include "support/basics/RecordedLog.h"
#include "support/hardware/PlayedInput.h"
#include "support/locks/InputGrab.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/DesktopWindows.h"
#include "support/windows/EventLogWindow.h"

#include <QLabel>
#include <QLineEdit>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <optional>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;
using namespace std::chrono_literals;

class QtKeyablePanelTest : public testing::Test {
protected:
    QtKeyablePanelTest()
    {
        auto view = std::make_unique<QLineEdit>();
        field = view.get();
        panel.host(std::move(view));
        panel.setFrame({{500, 200}, {300, 60}});
    }

    bool isAnyKeyDelivered()
    {
        input.type("k");
        return loopUntil([this] { return !field->text().isEmpty(); }, 1s);
    }
    bool hasArrived(const std::string& line)
    {
        return std::ranges::find(application.lines(), line) != application.lines().end();
    }
    /// Whether the panel gets keys, which takes it a moment.
    bool takesKeys()
    {
        const bool takes = loopUntil([this] { return field->hasFocus(); }) && isAnyKeyDelivered();
        field->clear();
        return takes;
    }

    RecordedLog log;
    XConnection server;
    DesktopWindows windows{server};
    PlayedInput input{server};
    EventLogWindow application{"Application", {50, 300, 300, 200}};
    X11Connection connection;
    QtKeyablePanel panel{connection};
    QLineEdit* field = nullptr;
    int resignations = 0;
    int presses = 0;
    Subscription resigning = panel.observeDidResignKey([this] { ++resignations; });
    Subscription pressing = panel.observePressOutside([this] { ++presses; });
};

TEST_F(QtKeyablePanelTest, takesTheKeysAndLeavesTheFocusWhereItIs)
{
    ASSERT_TRUE(windows.activate(application.id()));
    panel.makeKeyAndOrderFront();
    ASSERT_TRUE(takesKeys());
    EXPECT_EQ(windows.active(), application.id());
    EXPECT_TRUE(windows.hasFocus(application.id()));

    application.forget();
    input.type("hello, 1");
    EXPECT_TRUE(loopUntil([this] { return field->text() == "hello, 1"; }));
    EXPECT_EQ(application.lines(), Lines{});

    panel.orderOut();
    input.type("a");
    EXPECT_TRUE(loopUntil([this] { return hasArrived("key 38 up"); }))
        << testing::PrintToString(application.lines());
    EXPECT_EQ(field->text(), "hello, 1");
    EXPECT_EQ(resignations, 0);
}

TEST_F(QtKeyablePanelTest, isSeenByNobodyAndMetByNoClickAtFirst)
{
    panel.setAlpha(0);
    panel.orderFront();
    input.click(550, 230);
    EXPECT_TRUE(loopUntil([this] { return presses == 1; }));
    panel.setAlpha(1);
    waitForWindowsServer();
    input.click(550, 230);
    EXPECT_TRUE(loopThroughout(200ms, [this] { return presses == 1; }));
    input.click(550, 290);
    EXPECT_TRUE(loopUntil([this] { return presses == 2; }));
}

TEST_F(QtKeyablePanelTest, letsAPressOutsideReachWhatItMeets)
{
    panel.makeKeyAndOrderFront();
    ASSERT_TRUE(takesKeys());
    application.forget();
    input.click(100, 350);
    EXPECT_TRUE(loopUntil([this] { return presses == 1; }));
    EXPECT_TRUE(loopUntil([this] { return hasArrived("press 1"); }))
        << testing::PrintToString(application.lines());
}

TEST_F(QtKeyablePanelTest, waitsForAProgramThatHasTheKeyboardForAMoment)
{
    std::optional<InputGrab> menu(InputGrab::What{.pointer = false, .area = {0, 0, 10, 10}});
    panel.makeKeyAndOrderFront();
    loopThroughout(100ms, [] { return true; });
    menu.reset();
    EXPECT_TRUE(takesKeys());
    EXPECT_EQ(resignations, 0);
    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(QtKeyablePanelTest, saysThatAnotherProgramKeepsTheKeyboard)
{
    const InputGrab locker({.pointer = false, .area = {0, 0, 10, 10}});
    panel.makeKeyAndOrderFront();
    EXPECT_TRUE(loopUntil([this] { return resignations == 1; }));
    EXPECT_EQ(log.lines(),
        Lines{"WARN [clipboard] The panel was closed: another program keeps the keyboard"});
}

TEST_F(QtKeyablePanelTest, showsAnotherViewInPlaceOfTheOneBefore)
{
    panel.makeKeyAndOrderFront();
    ASSERT_TRUE(takesKeys());
    auto next = std::make_unique<QLineEdit>();
    field = next.get();
    panel.host(std::move(next));
    panel.makeKeyAndOrderFront();
    EXPECT_TRUE(takesKeys());
    EXPECT_EQ(resignations, 0);
}

TEST_F(QtKeyablePanelTest, returnsTheSizeThatTheViewWants)
{
    auto view = std::make_unique<QLabel>();
    view->setFixedSize(321, 123);
    EXPECT_EQ(panel.host(std::move(view)), (Size{321, 123}));
}

TEST_F(QtKeyablePanelTest, notifiesWhenTheWindowIsTakenAwayAsFromAProgramThatHangs)
{
    panel.makeKeyAndOrderFront();
    ASSERT_TRUE(takesKeys());
    xcb_unmap_window(server.get(), windows.unmanagedOf(getpid()).front());
    server.sync();
    EXPECT_TRUE(loopUntil([this] { return resignations == 1; }));
    EXPECT_EQ(
        log.lines(), Lines{"WARN [clipboard] The panel was closed: the program did not reply"});
    panel.orderOut();
    panel.makeKeyAndOrderFront();
    EXPECT_TRUE(takesKeys());
}

} // namespace
} // namespace brindlex
