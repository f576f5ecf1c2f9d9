#include "platform/linux/DesktopInputSourcesSteps.h"

#include "support/DesktopWindows.h"
#include "support/FcitxDaemon.h"
#include "support/SessionBus.h"
#include "support/TypingWindow.h"

#include <gtest/gtest.h>

#include <csignal>

namespace brindlex {
namespace {

const std::vector<std::string> fcitxMethods{"keyboard-us", "pinyin"};

TEST(DesktopInputSources, findsFcitxAgainAfterItWasKilled)
{
    VirtualDesktop desktop;
    const SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.get());
    EXPECT_EQ(sources.backendName(), "XKB");
    FcitxDaemon daemon(desktop, fcitxMethods);
    EXPECT_TRUE(becomes(sources, "Fcitx 5"));
    EXPECT_EQ(idsOf(sources), (std::vector<std::string>{"xkb:us::eng", "fcitx5:pinyin"}));
    daemon.stop();
    EXPECT_TRUE(becomes(sources, "XKB"));
    daemon.start();
    EXPECT_TRUE(becomes(sources, "Fcitx 5"));
    EXPECT_EQ(idsOf(sources), (std::vector<std::string>{"xkb:us::eng", "fcitx5:pinyin"}));
}

TEST(DesktopInputSources, doesNotHangWithAnFcitxThatHangs)
{
    VirtualDesktop desktop;
    FcitxDaemon daemon(desktop, fcitxMethods);
    const XConnection server;
    const DesktopWindows windows(server);
    const TypingWindow window(windows, "Typing");
    const auto process = processOf(desktop, "fcitx5");
    ASSERT_GT(process, 0);
    const SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.get());
    ASSERT_TRUE(becomes(sources, "Fcitx 5"));
    ASSERT_TRUE(loopUntil([&] { return !currentID(sources).empty(); }));
    ::kill(process, SIGSTOP);
    EXPECT_TRUE(isBounded([&] { selectID(sources, "fcitx5:pinyin"); }));
    EXPECT_TRUE(isBounded([&] { currentID(sources); }));
    ::kill(process, SIGCONT);
    EXPECT_TRUE(loopUntil([&] { return daemon.current() == "pinyin"; }));
    EXPECT_TRUE(loopUntil([&] { return currentID(sources) == "fcitx5:pinyin"; }));
}

TEST(DesktopInputSources, goesOnWithTheServersGroupsWhenTheBusEnds)
{
    VirtualDesktop desktop({.keyboardLayouts = "us,de"});
    FcitxDaemon daemon(desktop, fcitxMethods);
    const SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.get());
    ASSERT_TRUE(becomes(sources, "Fcitx 5"));
    desktop.endSessionBus();
    EXPECT_TRUE(becomes(sources, "XKB"));
    // The daemon has given the server a layout of its own.
    desktop.setKeyboardLayouts("us,de");
    EXPECT_TRUE(loopUntil([&] { return selectID(sources, "xkb:de::deu") == 0; }));
    EXPECT_EQ(currentID(sources), "xkb:de::deu");
}

} // namespace
} // namespace brindlex
