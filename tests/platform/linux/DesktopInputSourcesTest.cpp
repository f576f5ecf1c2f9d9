#include "platform/linux/DesktopInputSources.h"

#include "support/DesktopWindows.h"
#include "support/FcitxDaemon.h"
#include "support/IBusDaemon.h"
#include "support/KeyboardGroup.h"
#include "support/LoopUntil.h"
#include "support/PlayedInput.h"
#include "support/ProcessTable.h"
#include "support/RecordedLog.h"
#include "support/SessionBus.h"
#include "support/TypingWindow.h"
#include "support/VirtualDesktop.h"

#include <chrono>
#include <csignal>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

const std::vector<std::string> ibusEngines{"xkb:us::eng", "libpinyin"};
const std::vector<std::string> fcitxMethods{"keyboard-us", "pinyin"};

std::vector<std::string> idsOf(DesktopInputSources& sources)
{
    std::vector<std::string> ids;
    for (const auto& source : sources.list({}).value_or(std::vector<InputSourceProperties>()))
        ids.push_back(source.id.value_or(""));
    return ids;
}

std::string currentID(DesktopInputSources& sources)
{
    const auto source = sources.current();
    return source ? source->id.value_or("") : "";
}

int selectID(DesktopInputSources& sources, const std::string& id)
{
    const auto found = sources.list({.id = id});
    return found && !found->empty() ? sources.select(found->front()) : -1;
}

bool becomes(DesktopInputSources& sources, const std::string& backend)
{
    return loopUntil([&] { return sources.backendName() == backend; });
}

/// The process of the desktop that runs this program.
pid_t processOf(const VirtualDesktop& desktop, const std::string& program)
{
    for (const auto process : processesWithVariable("HOME", desktop.home())) {
        std::error_code gone;
        const auto file
            = std::filesystem::read_symlink("/proc/" + std::to_string(process) + "/exe", gone);
        if (file.filename() == program)
            return process;
    }
    return -1;
}

/// Whether the work ends long before a call to a daemon that hangs is given up.
bool isBounded(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::steady_clock::now() - start < 2s;
}

TEST(DesktopInputSources, followsLayoutsThatAreSetWhileItRuns)
{
    VirtualDesktop desktop({.keyboardLayouts = "us,de"});
    const XConnection server;
    const SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.get());
    EXPECT_EQ(idsOf(sources), (std::vector<std::string>{"xkb:us::eng", "xkb:de::deu"}));
    int told = 0;
    const auto subscription = sources.observeSelectionChanges([&] { ++told; });
    desktop.setKeyboardLayouts("fr,us,ru,de");
    EXPECT_TRUE(loopUntil([&] { return currentID(sources) == "xkb:fr::fra" && told == 1; }));
    EXPECT_EQ(idsOf(sources),
        (std::vector<std::string>{"xkb:fr::fra", "xkb:us::eng", "xkb:ru::rus", "xkb:de::deu"}));
    EXPECT_EQ(selectID(sources, "xkb:de::deu"), 0);
    EXPECT_EQ(keyboardGroup(server), 3);
    EXPECT_TRUE(loopUntil([&] { return told == 2; }));
}

TEST(DesktopInputSources, tellsTwoGroupsWithTheSameLayoutApart)
{
    const VirtualDesktop desktop({.keyboardLayouts = "us,de,us"});
    const XConnection server;
    const SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.get());
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
    const SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.get());
    EXPECT_EQ(selectID(sources, "xkb:de::ger"), 0);
    EXPECT_EQ(currentID(sources), "xkb:de::deu");
}

TEST(DesktopInputSources, worksWithoutASessionBus)
{
    const VirtualDesktop desktop({.keyboardLayouts = "us,de", .sessionBus = false});
    const SessionBus bus;
    X11Connection connection;
    RecordedLog log;
    DesktopInputSources sources(connection, bus.get());
    EXPECT_EQ(sources.backendName(), "XKB");
    EXPECT_EQ(selectID(sources, "xkb:de::deu"), 0);
    EXPECT_EQ(currentID(sources), "xkb:de::deu");
    EXPECT_EQ(
        log.lines(), std::vector<std::string>{"INFO [input-method] Input sources come from XKB"});
}

TEST(DesktopInputSources, saysNothingOnceTheServerHasGone)
{
    VirtualDesktop desktop({.sessionBus = false});
    const SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.get());
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
    const SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.get());
    EXPECT_TRUE(loopThroughout(300ms, [&] {
        return sources.backendName() == "XKB" && processOf(desktop, "ibus-daemon") == -1
            && processOf(desktop, "fcitx5") == -1;
    }));
}

TEST(DesktopInputSources, findsIBusAgainAfterItWasKilled)
{
    VirtualDesktop desktop({.keyboardLayouts = "us,de"});
    const SessionBus bus;
    X11Connection connection;
    RecordedLog log;
    DesktopInputSources sources(connection, bus.get());
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
    // What was on its way when the daemon died, or came before it was ready, is told beside.
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
    const SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.get());
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
    const SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.get());
    EXPECT_TRUE(loopThroughout(200ms, [&] { return sources.backendName() == "XKB"; }));
}

TEST(DesktopInputSources, isNotMisledByAnAddressFileThatWasLeftBehind)
{
    VirtualDesktop desktop;
    {
        IBusDaemon daemon(desktop, ibusEngines);
        daemon.stop();
    }
    const SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.get());
    EXPECT_EQ(sources.backendName(), "XKB");
    EXPECT_EQ(selectID(sources, "xkb:de::deu"), 0);
}

TEST(DesktopInputSources, doesNotHangWithAnIBusThatHangs)
{
    VirtualDesktop desktop;
    IBusDaemon daemon(desktop, ibusEngines);
    const auto process = processOf(desktop, "ibus-daemon");
    ASSERT_GT(process, 0);
    const SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.get());
    ASSERT_TRUE(becomes(sources, "IBus"));
    ::kill(process, SIGSTOP);
    EXPECT_TRUE(isBounded([&] { selectID(sources, "ibus:libpinyin"); }));
    EXPECT_TRUE(isBounded([&] { currentID(sources); }));
    {
        DesktopInputSources late(connection, bus.get());
        EXPECT_EQ(late.backendName(), "XKB");
        ::kill(process, SIGCONT);
        EXPECT_TRUE(becomes(late, "IBus"));
    }
    EXPECT_TRUE(loopUntil([&] { return currentID(sources) == "ibus:libpinyin"; }));
}

TEST(DesktopInputSources, endsInTheLastOfTwoEnginesWhenTheFirstHasToStart)
{
    VirtualDesktop desktop({.keyboardLayouts = "us"});
    IBusDaemon daemon(desktop, ibusEngines);
    const XConnection server;
    const DesktopWindows windows(server);
    const TypingWindow first(windows, "First");
    const TypingWindow second(windows, "Second");
    const SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.get());
    ASSERT_TRUE(becomes(sources, "IBus"));
    // By the user, so that nothing that was asked for is still on its way.
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
