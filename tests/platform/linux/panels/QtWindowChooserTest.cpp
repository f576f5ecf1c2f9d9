#include "platform/linux/panels/QtWindowChooser.h"

#include "support/basics/RecordedLog.h"
#include "support/hardware/PlayedInput.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/DesktopWindows.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

class QtWindowChooserTest : public testing::Test {
protected:
    ~QtWindowChooserTest() override { chooser.close(); }

    std::uint8_t grabKeyboard() const
    {
        const XReply<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(server.get(),
            xcb_grab_keyboard(server.get(), false, server.root(), XCB_CURRENT_TIME,
                XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
            nullptr));
        return reply ? reply->status : std::uint8_t{0xFF};
    }
    void freeKeyboard() const
    {
        xcb_ungrab_keyboard(server.get(), XCB_CURRENT_TIME);
        server.sync();
    }
    /// Whether the chooser has the keys; takes them from nobody.
    bool hasKeys() const
    {
        const bool isTaken = grabKeyboard() == XCB_GRAB_STATUS_ALREADY_GRABBED;
        if (!isTaken)
            freeKeyboard();
        return isTaken;
    }
    bool isOnScreen() const { return !windows.unmanagedOf(getpid()).empty(); }

    RecordedLog log;
    XConnection server;
    DesktopWindows windows{server};
    PlayedInput input{server};
    X11Connection connection;
    std::vector<std::uint32_t> chosen;
    QtWindowChooser chooser{connection, [this](std::uint32_t window) {
                                EXPECT_FALSE(isOnScreen());
                                EXPECT_FALSE(hasKeys());
                                chosen.push_back(window);
                            }};
    const std::vector<OpenWindow> some{{7, "Seven", ""}, {8, "Eight", ""}, {9, "Nine", ""}};
};

TEST_F(QtWindowChooserTest, tellsTheChosenWindowOnceItIsGone)
{
    chooser.show(some, 1);
    ASSERT_TRUE(loopUntil([&] { return hasKeys(); }));
    EXPECT_TRUE(isOnScreen());

    // It has the keys some time before it is seen and heeds them.
    EXPECT_TRUE(loopUntil([&] {
        if (chosen.empty())
            input.type("\n");
        return !chosen.empty();
    }));
    EXPECT_EQ(chosen, std::vector<std::uint32_t>{8});
    EXPECT_FALSE(chooser.isShown());
}

TEST_F(QtWindowChooserTest, leavesNothingBehindWhenItIsClosed)
{
    chooser.show(some, 1);
    ASSERT_TRUE(loopUntil([&] { return hasKeys(); }));

    chooser.close();
    chooser.close();

    EXPECT_FALSE(isOnScreen());
    EXPECT_FALSE(hasKeys());
    EXPECT_FALSE(chooser.isShown());
    EXPECT_TRUE(chosen.empty());
}

TEST_F(QtWindowChooserTest, isSeenAsSoonAsAnotherProgramLetsTheKeysGo)
{
    ASSERT_EQ(grabKeyboard(), XCB_GRAB_STATUS_SUCCESS);
    chooser.show(some, 0);
    ASSERT_TRUE(loopThroughout(100ms, [&] { return !isOnScreen(); }));

    freeKeyboard();

    EXPECT_TRUE(loopUntil([&] { return isOnScreen(); }));
    EXPECT_TRUE(loopUntil([&] { return hasKeys(); }));
}

TEST_F(QtWindowChooserTest, closesWhenAnotherProgramKeepsTheKeys)
{
    ASSERT_EQ(grabKeyboard(), XCB_GRAB_STATUS_SUCCESS);

    chooser.show(some, 0);

    EXPECT_TRUE(loopUntil([&] {
        EXPECT_FALSE(isOnScreen()) << "where whoever has the keys may be a locker";
        return !chooser.isShown();
    }));
    EXPECT_FALSE(isOnScreen());
    EXPECT_EQ(log.lines(),
        (std::vector<std::string>{
            "WARN [mouse] Mission Control: another program keeps the pointer or the "
            "keyboard; the list of windows was closed"}));
    freeKeyboard();
}

TEST_F(QtWindowChooserTest, isOneListHoweverOftenItIsShown)
{
    chooser.show(some, 0);
    chooser.show(some, 2);
    ASSERT_TRUE(loopUntil([&] { return hasKeys(); }));

    EXPECT_EQ(windows.unmanagedOf(getpid()).size(), 1U);
}

} // namespace
} // namespace brindlex
