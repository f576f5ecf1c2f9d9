#include "platform/linux/inputsources/DesktopInputSourcesSteps.h"

#include "platform/linux/system/SessionBus.h"
#include "support/basics/RecordedLog.h"
#include "support/daemons/IBusDaemon.h"
#include "support/hardware/KeyboardGroup.h"
#include "support/hardware/PlayedInput.h"
#include "support/screen/DesktopWindows.h"
#include "support/windows/TypingWindow.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

const std::vector<std::string> ibusEngines{"xkb:us::eng", "libpinyin"};

TEST(DesktopInputSources, findsIBusAgainAfterItWasKilled)
{
    VirtualDesktop desktop({.keyboardLayouts = "us,de"});
    SessionBus bus;
    X11Connection connection;
    RecordedLog log;
    DesktopInputSources sources(connection, bus.connection());
    EXPECT_EQ(sources.backendName(), "XKB");
    IBusDaemon daemon(desktop, ibusEngines);
    EXPECT_TRUE(becomes(sources, "IBus"));
    EXPECT_EQ(selectID(sources, "ibus:libpinyin"), 0);
    EXPECT_EQ(currentID(sources), "ibus:libpinyin");
    daemon.stop();
    EXPECT_TRUE(becomes(sources, "XKB"));
    EXPECT_EQ(idsOf(sources), (std::vector<std::string>{"xkb:us::eng", "xkb:de::deu"}));
    daemon.start();
    EXPECT_TRUE(becomes(sources, "IBus"));
    EXPECT_EQ(selectID(sources, "ibus:libpinyin"), 0);
    EXPECT_EQ(currentID(sources), "ibus:libpinyin");
    // What was on its way when the daemon died, or came before it was ready, is logged beside.
    std::vector<std::string> lines;
    for (const auto& line : log.lines())
        if (line.find("cannot be used") == line.npos && line.find("did not") == line.npos)
            lines.push_back(line);
    EXPECT_EQ(lines,
        (std::vector<std::string>{"INFO [input-method] Input sources come from XKB",
            "INFO [input-method] Input sources come from IBus", "WARN [input-method] IBus has gone",
            "INFO [input-method] Input sources come from XKB",
            "INFO [input-method] Input sources come from IBus"}));
}

TEST(DesktopInputSources, readsKeysOfAnEngineWithItsLayout)
{
    VirtualDesktop desktop({.keyboardLayouts = "us,de"});
    IBusDaemon daemon(desktop, {"xkb:us::eng", "xkb:de::deu", "libpinyin"});
    const XConnection server;
    SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.connection());
    ASSERT_TRUE(becomes(sources, "IBus"));
    EXPECT_EQ(selectID(sources, "xkb:de::deu"), 0);
    EXPECT_EQ(keyboardGroup(server), 1);
    EXPECT_EQ(selectID(sources, "ibus:libpinyin"), 0);
    EXPECT_EQ(keyboardGroup(server), 0);
}

TEST(DesktopInputSources, leavesAnIBusWithOnePlainLayoutAlone)
{
    VirtualDesktop desktop({.keyboardLayouts = "us,de"});
    IBusDaemon daemon(desktop, {"xkb:us::eng"});
    SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.connection());
    EXPECT_TRUE(loopThroughout(200ms, [&] { return sources.backendName() == "XKB"; }));
}

TEST(DesktopInputSources, isNotMisledByAnAddressFileThatWasLeftBehind)
{
    VirtualDesktop desktop;
    {
        IBusDaemon daemon(desktop, ibusEngines);
        daemon.stop();
    }
    SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.connection());
    EXPECT_EQ(sources.backendName(), "XKB");
    EXPECT_EQ(selectID(sources, "xkb:de::deu"), 0);
}

TEST(DesktopInputSources, doesNotHangWithAnIBusThatHangs)
{
    VirtualDesktop desktop;
    IBusDaemon daemon(desktop, ibusEngines);
    const auto process = processOf(desktop, "ibus-daemon");
    ASSERT_GT(process, 0);
    SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.connection());
    ASSERT_TRUE(becomes(sources, "IBus"));
    ::kill(process, SIGSTOP);
    EXPECT_TRUE(isBounded([&] { selectID(sources, "ibus:libpinyin"); }));
    EXPECT_TRUE(isBounded([&] { currentID(sources); }));
    {
        DesktopInputSources late(connection, bus.connection());
        EXPECT_EQ(late.backendName(), "XKB");
        ::kill(process, SIGCONT);
        EXPECT_TRUE(becomes(late, "IBus"));
    }
    EXPECT_TRUE(loopUntil([&] { return currentID(sources) == "ibus:libpinyin"; }));
}

TEST(DesktopInputSources, takesAnEngineThatIsRefusedLateForNobodysChoice)
{
    VirtualDesktop desktop;
    IBusDaemon daemon(desktop, ibusEngines);
    ASSERT_TRUE(daemon.select("xkb:us::eng"));
    const auto process = processOf(desktop, "ibus-daemon");
    SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.connection());
    ASSERT_TRUE(becomes(sources, "IBus"));
    ASSERT_TRUE(loopUntil([&] { return currentID(sources) == "xkb:us::eng"; }));
    std::vector<std::pair<std::string, SelectionCause>> notified;
    const auto subscription = sources.observeSelectionChanges(
        [&](SelectionCause cause) { notified.emplace_back(currentID(sources), cause); });

    ::kill(process, SIGSTOP);
    EXPECT_EQ(selectID(sources, "ibus:libpinyin"), 0);
    EXPECT_TRUE(loopUntil([&] { return notified.size() == 2; })) << "after five seconds";
    ::kill(process, SIGCONT);
    // It carries out what it was called for all the same.
    EXPECT_TRUE(loopUntil([&] { return notified.size() == 3; }));

    EXPECT_EQ(notified,
        (std::vector<std::pair<std::string, SelectionCause>>{
            {"ibus:libpinyin", SelectionCause::choice}, {"xkb:us::eng", SelectionCause::undoing},
            {"ibus:libpinyin", SelectionCause::place}}));
}

TEST(DesktopInputSources, hasTheEnginesThatAreEnabledAsGnomeDoes)
{
    VirtualDesktop desktop({.keyboardLayouts = "us,de"});
    const auto daemon
        = IBusDaemon::inGnome(desktop, "[('xkb', 'de'), ('ibus', 'libpinyin'), ('xkb', 'zz')]");
    SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.connection());
    ASSERT_TRUE(becomes(sources, "IBus"));
    EXPECT_EQ(idsOf(sources), (std::vector<std::string>{"xkb:de::deu", "ibus:libpinyin"}));
    EXPECT_EQ(selectID(sources, "ibus:libpinyin"), 0);
    EXPECT_TRUE(loopUntil([&] { return daemon->current() == "libpinyin"; }));
    EXPECT_EQ(selectID(sources, "xkb:de::deu"), 0);
    EXPECT_TRUE(loopUntil([&] { return daemon->current() == "xkb:de::deu"; }));

    IBusDaemon::enableInGnome(desktop, "[('xkb', 'us'), ('ibus', 'libpinyin')]");
    EXPECT_TRUE(loopUntil([&] {
        return idsOf(sources) == std::vector<std::string>{"xkb:us::eng", "ibus:libpinyin"};
    }));
}

TEST(DesktopInputSources, endsInTheLastOfTwoEnginesWhenTheFirstHasToStart)
{
    VirtualDesktop desktop({.keyboardLayouts = "us"});
    IBusDaemon daemon(desktop, ibusEngines);
    const XConnection server;
    const DesktopWindows windows(server);
    const TypingWindow first(windows, "First");
    const TypingWindow second(windows, "Second");
    SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.connection());
    ASSERT_TRUE(becomes(sources, "IBus"));
    // By the user, so that nothing that was requested is still on its way.
    ASSERT_TRUE(daemon.select("xkb:us::eng"));
    ASSERT_TRUE(loopUntil([&] { return currentID(sources) == "xkb:us::eng"; }));
    PlayedInput(server).type("a");
    ASSERT_TRUE(second.receives("a"));

    EXPECT_EQ(selectID(sources, "ibus:libpinyin"), 0);
    EXPECT_TRUE(windows.activate(first.window()));
    EXPECT_EQ(selectID(sources, "xkb:us::eng"), 0);
    EXPECT_EQ(currentID(sources), "xkb:us::eng");

    EXPECT_TRUE(loopUntil([&] { return processOf(desktop, "ibus-engine-libpinyin") > 0; }));
    // Pinyin may come and go until both have been carried out.
    EXPECT_TRUE(loopUntil(
        [&] { return loopThroughout(1s, [&] { return daemon.current() == "xkb:us::eng"; }); }));
    EXPECT_EQ(currentID(sources), "xkb:us::eng");
}

} // namespace
} // namespace brindlex
