#include "platform/linux/inputsources/DesktopInputSourcesSteps.h"

#include "platform/linux/system/SessionBus.h"
#include "support/bus/BusCalls.h"
#include "support/daemons/FcitxDaemon.h"
#include "support/screen/DesktopWindows.h"
#include "support/windows/PlainWindow.h"
#include "support/windows/TypingWindow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>

namespace brindlex {
namespace {

const std::vector<std::string> fcitxMethods{"keyboard-us", "pinyin"};

bool hasChoice(const std::vector<SelectionCause>& causes)
{
    return std::find(causes.begin(), causes.end(), SelectionCause::choice) != causes.end();
}

TEST(DesktopInputSources, findsFcitxAgainAfterItWasKilled)
{
    VirtualDesktop desktop;
    SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.connection());
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

TEST(DesktopInputSources, asksFcitxForNothingWhileNobodyObserves)
{
    VirtualDesktop desktop;
    FcitxDaemon daemon(desktop, fcitxMethods);
    const XConnection server;
    const DesktopWindows windows(server);
    const TypingWindow window(windows, "Typing");
    SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.connection());
    ASSERT_TRUE(becomes(sources, "Fcitx 5"));
    std::vector<SelectionCause> causes;
    const auto observe = [&] {
        return sources.observeSelectionChanges(
            [&](SelectionCause cause) { causes.push_back(cause); });
    };
    BusCalls reads("CurrentInputMethod");
    auto observation = observe();
    ASSERT_TRUE(loopUntil([&] { return reads.taken() > 0; }));

    observation.reset();
    // Several times as long as between two reads; one of them may be under way.
    loopThroughout(std::chrono::seconds{1}, [] { return true; });
    EXPECT_LE(reads.taken(), 1);
    loopThroughout(std::chrono::seconds{1}, [] { return true; });
    EXPECT_EQ(reads.taken(), 0);

    ASSERT_TRUE(daemon.select("pinyin"));
    observation = observe();
    EXPECT_TRUE(loopUntil([&] { return currentID(sources) == "fcitx5:pinyin"; }));
    int taken = 0;
    ASSERT_TRUE(loopUntil([&] { return (taken += reads.taken()) > 3; }));
    EXPECT_FALSE(hasChoice(causes)) << "It was selected before.";
    ASSERT_TRUE(daemon.select("keyboard-us"));
    EXPECT_TRUE(loopUntil([&] { return hasChoice(causes); }));
}

TEST(DesktopInputSources, takesForNobodysChoiceWhatASlowFcitxSaysLate)
{
    VirtualDesktop desktop;
    FcitxDaemon daemon(desktop, fcitxMethods);
    const XConnection server;
    const DesktopWindows windows(server);
    const TypingWindow window(windows, "Typing");
    const auto process = processOf(desktop, "fcitx5");
    ASSERT_GT(process, 0);
    SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.connection());
    ASSERT_TRUE(becomes(sources, "Fcitx 5"));
    ASSERT_TRUE(daemon.select("keyboard-us"));
    ASSERT_TRUE(loopUntil([&] { return currentID(sources) == "xkb:us::eng"; }));
    // Nothing is read by itself until somebody observes.
    loopThroughout(std::chrono::seconds{1}, [] { return true; });
    ASSERT_TRUE(daemon.select("pinyin"));
    ::kill(process, SIGSTOP);
    std::vector<SelectionCause> causes;
    const auto observation
        = sources.observeSelectionChanges([&](SelectionCause cause) { causes.push_back(cause); });
    // Longer than the first read is waited for.
    loopThroughout(std::chrono::milliseconds{500}, [] { return true; });
    ::kill(process, SIGCONT);
    ASSERT_TRUE(loopUntil([&] { return !causes.empty(); }));
    EXPECT_EQ(causes, std::vector{SelectionCause::place});
    EXPECT_EQ(currentID(sources), "fcitx5:pinyin");
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
    SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.connection());
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
    SessionBus bus;
    X11Connection connection;
    DesktopInputSources sources(connection, bus.connection());
    ASSERT_TRUE(becomes(sources, "Fcitx 5"));
    desktop.endSessionBus();
    EXPECT_TRUE(becomes(sources, "XKB"));
    // The daemon has given the server a layout of its own.
    desktop.setKeyboardLayouts("us,de");
    EXPECT_TRUE(loopUntil([&] { return selectID(sources, "xkb:de::deu") == 0; }));
    EXPECT_EQ(currentID(sources), "xkb:de::deu");
}

/// A user of Fcitx whose windows have a method of their own each, as is usual.
class InputSourcesOfFcitx : public testing::Test {
protected:
    InputSourcesOfFcitx() { EXPECT_TRUE(becomes(sources_, "Fcitx 5")); }

    bool comesTo(const std::string& id)
    {
        return loopUntil([&] { return currentID(sources_) == id; });
    }

    /// Waits until a window other than that one has the keyboard.
    std::string keyboardApartFrom(const std::string& context)
    {
        std::string found;
        EXPECT_TRUE(loopUntil([&] {
            found = daemon_.context();
            return !found.empty() && found != context;
        }));
        return found;
    }

    VirtualDesktop desktop_;
    FcitxDaemon daemon_{desktop_, fcitxMethods};
    XConnection server_;
    DesktopWindows windows_{server_};
    SessionBus bus_;
    X11Connection connection_;
    DesktopInputSources sources_{connection_, bus_.connection()};
};

TEST_F(InputSourcesOfFcitx, takeASelectionBeforeAnyWindowTypes)
{
    const PlainWindow picture(server_, {.wmClass = wmClass("Picture")});
    ASSERT_TRUE(windows_.activate(picture.window()));
    ASSERT_EQ(daemon_.current(), "");

    EXPECT_EQ(selectID(sources_, "fcitx5:pinyin"), 0);
    EXPECT_EQ(currentID(sources_), "fcitx5:pinyin");
    EXPECT_TRUE(loopThroughout(
        std::chrono::milliseconds{500}, [&] { return currentID(sources_) == "fcitx5:pinyin"; }));

    const TypingWindow window(windows_, "Typing");
    EXPECT_TRUE(comesTo("xkb:us::eng"));
}

TEST_F(InputSourcesOfFcitx, giveTheSelectionToAWindowThatGetsTheKeyboardLate)
{
    const TypingWindow slow(windows_, "Slow");
    const auto slowKeyboard = keyboardApartFrom("");
    const TypingWindow before(windows_, "Before");
    keyboardApartFrom(slowKeyboard);
    EXPECT_TRUE(comesTo("xkb:us::eng"));
    std::vector<std::string> notified;
    const auto subscription = sources_.observeSelectionChanges(
        [&](SelectionCause) { notified.push_back(currentID(sources_)); });

    ::kill(slow.process(), SIGSTOP);
    EXPECT_TRUE(windows_.activate(slow.window()));
    EXPECT_TRUE(loopUntil([&] { return daemon_.context().empty(); }));
    EXPECT_EQ(selectID(sources_, "fcitx5:pinyin"), 0);
    EXPECT_TRUE(loopUntil([&] { return !notified.empty() && notified.back() == "fcitx5:pinyin"; }));
    const auto all = notified;
    EXPECT_TRUE(loopThroughout(std::chrono::milliseconds{700}, [&] { return notified == all; }));
    ::kill(slow.process(), SIGCONT);

    EXPECT_TRUE(loopUntil(
        [&] { return daemon_.context() == slowKeyboard && daemon_.current() == "pinyin"; }));
    EXPECT_TRUE(loopThroughout(std::chrono::milliseconds{500}, [&] { return notified == all; }));
    EXPECT_EQ(currentID(sources_), "fcitx5:pinyin");
}

TEST_F(InputSourcesOfFcitx, giveTheSelectionToOneWindowOnly)
{
    const TypingWindow window(windows_, "Typing");
    EXPECT_TRUE(comesTo("xkb:us::eng"));
    EXPECT_EQ(selectID(sources_, "fcitx5:pinyin"), 0);
    EXPECT_TRUE(loopUntil([&] { return daemon_.current() == "pinyin"; }));
    EXPECT_TRUE(loopThroughout(
        std::chrono::milliseconds{500}, [&] { return currentID(sources_) == "fcitx5:pinyin"; }));

    const TypingWindow another(windows_, "Another");
    EXPECT_TRUE(comesTo("xkb:us::eng"));
    EXPECT_EQ(daemon_.current(), "keyboard-us");
}

TEST_F(InputSourcesOfFcitx, leaveTheUserTheChoiceRightAfterASelection)
{
    const TypingWindow window(windows_, "Typing");
    EXPECT_TRUE(comesTo("xkb:us::eng"));
    EXPECT_EQ(selectID(sources_, "fcitx5:pinyin"), 0);
    EXPECT_TRUE(daemon_.select("keyboard-us"));
    EXPECT_TRUE(comesTo("xkb:us::eng"));
    EXPECT_TRUE(loopThroughout(
        std::chrono::milliseconds{500}, [&] { return currentID(sources_) == "xkb:us::eng"; }));
    EXPECT_EQ(daemon_.current(), "keyboard-us");
}

} // namespace
} // namespace brindlex
