#include "support/windows/TypingWindow.h"

#include "support/daemons/FcitxDaemon.h"
#include "support/daemons/IBusDaemon.h"
#include "support/hardware/KeyboardGroup.h"
#include "support/hardware/PlayedInput.h"
#include "support/screen/VirtualDesktop.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// Expects a window to get Chinese by one engine of the daemon and Latin letters by another.
template <typename Daemon>
void expectChinese(const VirtualDesktop& desktop, Daemon& daemon, const std::string& pinyin,
    const std::string& keyboard)
{
    const XConnection server;
    const DesktopWindows windows(server);
    const PlayedInput input(server);
    TypingWindow window(windows, "Alpha");
    ASSERT_TRUE(windows.activate(window.window()));

    const auto selectsPinyin = [&] { return daemon.select(pinyin) && daemon.current() == pinyin; };
    EXPECT_TRUE(window.receives("你好", input, "nihao ", selectsPinyin))
        << window.text() << desktop.output();

    window.forget();
    ASSERT_TRUE(daemon.select(keyboard));
    input.type("nihao");
    EXPECT_TRUE(window.receives("nihao")) << window.text();
}

TEST(TypingWindow, receivesWhatTheKeysTypeInTheLayoutInForce)
{
    const VirtualDesktop desktop({.keyboardLayouts = "us,de"});
    const XConnection server;
    const DesktopWindows windows(server);
    const PlayedInput input(server);
    TypingWindow window(windows, "Alpha");
    ASSERT_TRUE(windows.activate(window.window()));

    input.type("xyz XYZ 09-");
    EXPECT_TRUE(window.receives("xyz XYZ 09-")) << window.text();

    window.forget();
    selectKeyboardGroup(server, 1);
    input.type("xyz-;");
    EXPECT_TRUE(window.receives("xzyßö")) << window.text();
    EXPECT_EQ(keyboardGroup(server), 1);
}

TEST(TypingWindow, receivesNothingWhileAnotherWindowIsInFront)
{
    const VirtualDesktop desktop;
    const XConnection server;
    const DesktopWindows windows(server);
    const PlayedInput input(server);
    TypingWindow first(windows, "Alpha");
    TypingWindow second(windows, "Beta");

    ASSERT_TRUE(windows.activate(first.window()));
    input.type("a");
    ASSERT_TRUE(first.receives("a"));
    ASSERT_TRUE(windows.activate(second.window()));
    input.type("b");

    EXPECT_TRUE(second.receives("b")) << second.text();
    EXPECT_EQ(first.text(), "a");
    EXPECT_EQ(windows.classOf(second.window()), "Beta");
    EXPECT_EQ(windows.titleOf(first.window()), "Alpha");
}

TEST(TypingWindow, receivesChineseThroughIBus)
{
    VirtualDesktop desktop({.keyboardLayouts = "us"});
    IBusDaemon daemon(desktop, {"xkb:us::eng", "libpinyin"});

    expectChinese(desktop, daemon, "libpinyin", "xkb:us::eng");
}

TEST(TypingWindow, receivesChineseThroughFcitx)
{
    VirtualDesktop desktop({.keyboardLayouts = "us"});
    FcitxDaemon daemon(desktop, {"keyboard-us", "pinyin"});

    expectChinese(desktop, daemon, "pinyin", "keyboard-us");
}

} // namespace
} // namespace brindlex
