#include "platform/linux/inputsources/DesktopInputSourcesSteps.h"

#include "platform/linux/system/SessionBus.h"
#include "support/basics/RecordedLog.h"
#include "support/hardware/KeyboardGroup.h"

#include <gtest/gtest.h>

#include <chrono>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

TEST(DesktopInputSources, followsLayoutsThatAreSetWhileItRuns)
{
    VirtualDesktop desktop({.keyboardLayouts = "us,de"});
    const XConnection server;
    SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.connection());
    EXPECT_EQ(idsOf(sources), (std::vector<std::string>{"xkb:us::eng", "xkb:de::deu"}));
    int notifications = 0;
    const auto subscription
        = sources.observeSelectionChanges([&](SelectionCause) { ++notifications; });
    desktop.setKeyboardLayouts("fr,us,ru,de");
    EXPECT_TRUE(
        loopUntil([&] { return currentID(sources) == "xkb:fr::fra" && notifications == 1; }));
    EXPECT_EQ(idsOf(sources),
        (std::vector<std::string>{"xkb:fr::fra", "xkb:us::eng", "xkb:ru::rus", "xkb:de::deu"}));
    EXPECT_EQ(selectID(sources, "xkb:de::deu"), 0);
    EXPECT_EQ(keyboardGroup(server), 3);
    EXPECT_TRUE(loopUntil([&] { return notifications == 2; }));
}

TEST(DesktopInputSources, distinguishesTwoGroupsWithTheSameLayout)
{
    const VirtualDesktop desktop({.keyboardLayouts = "us,de,us"});
    const XConnection server;
    SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.connection());
    EXPECT_EQ(
        idsOf(sources), (std::vector<std::string>{"xkb:us::eng", "xkb:de::deu", "xkb:us::eng#2"}));
    EXPECT_EQ(selectID(sources, "xkb:us::eng#2"), 0);
    EXPECT_EQ(keyboardGroup(server), 2);
    EXPECT_EQ(currentID(sources), "xkb:us::eng#2");
    EXPECT_EQ(selectID(sources, "xkb:us::eng"), 0);
    EXPECT_EQ(keyboardGroup(server), 0);
}

TEST(DesktopInputSources, acceptsTheOtherCodeOfALanguage)
{
    const VirtualDesktop desktop({.keyboardLayouts = "us,de"});
    SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.connection());
    EXPECT_EQ(selectID(sources, "xkb:de::ger"), 0);
    EXPECT_EQ(currentID(sources), "xkb:de::deu");
}

TEST(DesktopInputSources, worksWithoutASessionBus)
{
    const VirtualDesktop desktop({.keyboardLayouts = "us,de", .sessionBus = false});
    SessionBus bus;
    X11Connection connection;
    RecordedLog log;
    DesktopInputSources sources(connection, bus.connection());
    EXPECT_EQ(sources.backendName(), "XKB");
    EXPECT_EQ(selectID(sources, "xkb:de::deu"), 0);
    EXPECT_EQ(currentID(sources), "xkb:de::deu");
    EXPECT_EQ(
        log.lines(), std::vector<std::string>{"INFO [input-method] Input sources come from XKB"});
}

TEST(DesktopInputSources, saysNothingOnceTheServerHasGone)
{
    VirtualDesktop desktop({.sessionBus = false});
    SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.connection());
    const auto german = sources.list({.id = "xkb:de::deu"}).value().at(0);
    desktop.endDisplayServer();
    EXPECT_TRUE(loopUntil([&] { return !connection.isAlive(); }));
    EXPECT_EQ(sources.current(), std::nullopt);
    EXPECT_EQ(sources.list({}), std::nullopt);
    EXPECT_EQ(sources.select(german), static_cast<int>(SelectionStatus::notConnected));
}

TEST(DesktopInputSources, startsNoDaemonByAsking)
{
    const VirtualDesktop desktop;
    SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.connection());
    EXPECT_TRUE(loopThroughout(300ms, [&] {
        return sources.backendName() == "XKB" && processOf(desktop, "ibus-daemon") == -1
            && processOf(desktop, "fcitx5") == -1;
    }));
}

} // namespace
} // namespace brindlex
