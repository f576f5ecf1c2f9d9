// How long the program takes from selecting an input source to the source being selected, against
// the bare call of the same program that switches sources there, and what an activation costs.
// Measures on one virtual desktop after the other: with XKB layouts alone, with IBus, with Fcitx 5;
// `bench_select 500` does 500 rounds. `bench_select 500 here` measures on the desktop that the
// environment names, with whichever input method runs there.
//
// "bare" is the daemon's own call over a connection that is kept, or the server's own request, and
// the reply to it. "select" is the call of the program's interface, by which the source is
// selected unless the daemon takes longer than 30 ms.

#include "platform/linux/applications/X11RunningApplications.h"
#include "platform/linux/inputsources/DesktopInputSources.h"
#include "platform/linux/inputsources/IBusAddress.h"
#include "platform/linux/windows/X11WindowReading.h"
#include "platform/linux/x11/XkbProtocol.h"
#include "support/daemons/FcitxDaemon.h"
#include "support/daemons/IBusDaemon.h"
#include "support/processes/ChildProcess.h"
#include "support/screen/DesktopWindows.h"
#include "support/screen/VirtualDesktop.h"
#include "support/windows/TypingWindow.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

namespace brindlex {
namespace {

using Clock = std::chrono::steady_clock;

void report(const char* what, std::vector<double> milliseconds)
{
    if (milliseconds.empty())
        return;
    std::sort(milliseconds.begin(), milliseconds.end());
    const auto at = [&](double share) {
        return milliseconds[static_cast<std::size_t>(
            share * static_cast<double>(milliseconds.size() - 1))];
    };
    std::printf("%-34s median %8.3f ms   p99 %8.3f ms   max %8.3f ms   n %zu\n", what, at(0.5),
        at(0.99), milliseconds.back(), milliseconds.size());
}

std::vector<double> measure(int rounds, const std::function<void(int round)>& work)
{
    std::vector<double> milliseconds;
    for (int round = 0; round < rounds; ++round) {
        const auto start = Clock::now();
        work(round);
        milliseconds.push_back(
            std::chrono::duration<double, std::milli>(Clock::now() - start).count());
        QCoreApplication::processEvents();
    }
    return milliseconds;
}

void benchBareGroups(X11Connection& connection, int rounds)
{
    report("bare XkbLockGroup + XkbGetState", measure(rounds, [&](int round) {
        xcb_xkb_latch_lock_state(connection.get(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, true,
            static_cast<std::uint8_t>(round % 2), 0, false, 0);
        const X11Message<xcb_xkb_get_state_reply_t> state(xcb_xkb_get_state_reply(connection.get(),
            xcb_xkb_get_state(connection.get(), XCB_XKB_ID_USE_CORE_KBD), nullptr));
    }));
}

void benchBareFcitx(int rounds, const std::vector<InputSourceProperties>& sources)
{
    const auto methodOf = [](const InputSourceProperties& source) {
        const auto id = source.id.value_or("");
        const auto layout = layoutOfSource(id);
        if (!layout)
            return QString::fromStdString(id.substr(id.find(':') + 1));
        return QString::fromStdString(
            "keyboard-" + layout->layout + (layout->variant.empty() ? "" : "-" + layout->variant));
    };
    const auto bus = QDBusConnection::sessionBus();
    report("bare SetCurrentIM + read back", measure(rounds, [&](int round) {
        for (const auto* member : {"SetCurrentIM", "CurrentInputMethod"}) {
            auto call = QDBusMessage::createMethodCall(QStringLiteral("org.fcitx.Fcitx5"),
                QStringLiteral("/controller"), QStringLiteral("org.fcitx.Fcitx.Controller1"),
                QLatin1String(member));
            if (member == std::string_view("SetCurrentIM"))
                call << methodOf(sources[static_cast<std::size_t>(round % 2)]);
            bus.call(call, QDBus::Block, 1000);
        }
    }));
}

void benchBareIBus(int rounds, const std::vector<InputSourceProperties>& sources)
{
    const auto engineOf = [](const InputSourceProperties& source) {
        const auto id = source.id.value_or("");
        return QString::fromStdString(id.starts_with("ibus:") ? id.substr(5) : id);
    };
    const auto address = ibusAddress();
    if (!address)
        return;
    const auto bus = QDBusConnection::connectToBus(
        QString::fromStdString(address->address), QStringLiteral("bench-ibus"));
    report("bare SetGlobalEngine", measure(rounds, [&](int round) {
        auto call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.IBus"),
            QStringLiteral("/org/freedesktop/IBus"), QStringLiteral("org.freedesktop.IBus"),
            QStringLiteral("SetGlobalEngine"));
        call << engineOf(sources[static_cast<std::size_t>(round % 2)]);
        bus.call(call, QDBus::Block, 1000);
    }));
}

void benchSelection(X11Connection& connection, int rounds)
{
    DesktopInputSources desktop(connection, QDBusConnection::sessionBus());
    const auto sources = desktop.list({}).value_or(std::vector<InputSourceProperties>());
    const std::string backend(desktop.backendName());
    std::printf("Input sources come from %s: %zu\n", backend.c_str(), sources.size());
    if (sources.size() < 2)
        return;
    if (backend == "XKB")
        benchBareGroups(connection, rounds);
    else if (backend == "IBus")
        benchBareIBus(rounds, sources);
    else
        benchBareFcitx(rounds, sources);
    int failures = 0;
    report("select", measure(rounds, [&](int round) {
        const auto& source = sources[static_cast<std::size_t>(round % 2)];
        if (desktop.select(source) != 0 || desktop.current() != source)
            ++failures;
    }));
    std::printf("%-34s %d of %d\n", "selections that failed", failures, rounds);
    report("current", measure(rounds, [&](int) { desktop.current(); }));
    report("list of one", measure(rounds, [&](int) { desktop.list({.id = sources[1].id}); }));
}

void benchApplications(X11Connection& connection, int rounds)
{
    auto entries = DesktopEntries::ofUser();
    report("reading all desktop entries", measure(1, [&](int) { entries.all(); }));
    report("looking for changed entries", measure(rounds, [&](int) { entries.refresh(); }));
    X11ActiveWindow active(connection);
    X11RunningApplications applications(connection, active, entries);
    report("running applications", measure(rounds, [&](int) { applications.running(); }));
    const auto windows = managedWindows(connection);
    if (windows.size() < 2)
        return;
    report("request until an activation is told", measure(rounds, [&](int round) {
        bool isTold = false;
        const auto subscription
            = applications.observeActivation([&](const auto&) { isTold = true; });
        xcb_client_message_event_t request{};
        request.response_type = XCB_CLIENT_MESSAGE;
        request.format = 32;
        request.window = windows[static_cast<std::size_t>(round) % 2];
        request.type = connection.atom("_NET_ACTIVE_WINDOW");
        request.data.data32[0] = 2;
        xcb_send_event(connection.get(), false, connection.root(),
            XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
            reinterpret_cast<const char*>(&request));
        xcb_flush(connection.get());
        const auto start = Clock::now();
        while (!isTold && Clock::now() - start < std::chrono::seconds(1))
            QCoreApplication::processEvents();
    }));
}

bool benchHere(int rounds)
{
    X11Connection connection;
    if (!connection.isAlive()) {
        std::fputs("There is no X server.\n", stderr);
        return false;
    }
    benchSelection(connection, rounds);
    benchApplications(connection, rounds);
    return true;
}

/// Runs this program again, on the desktop that has just been made.
void benchOnDesktop(const VirtualDesktop& desktop, const char* program, const char* rounds)
{
    const XConnection server;
    const DesktopWindows windows(server);
    const TypingWindow alpha(windows, "Alpha");
    const TypingWindow beta(windows, "Beta");
    const ChildProcess::Start start{
        .command = {program, rounds, "here"}, .output = desktop.outputFolder() / "bench_select"};
    run(start, std::chrono::minutes(2));
    std::printf("%s\n", contentOf(start.output).c_str());
}

void benchEachBackend(const char* program, const char* rounds)
{
    {
        const VirtualDesktop desktop({.keyboardLayouts = "us,de"});
        benchOnDesktop(desktop, program, rounds);
    }
    {
        VirtualDesktop desktop({.keyboardLayouts = "us"});
        const IBusDaemon daemon(desktop, {"xkb:us::eng", "libpinyin"});
        benchOnDesktop(desktop, program, rounds);
    }
    {
        VirtualDesktop desktop({.keyboardLayouts = "us"});
        const FcitxDaemon daemon(desktop, {"keyboard-us", "pinyin"});
        benchOnDesktop(desktop, program, rounds);
    }
}

} // namespace
} // namespace brindlex

int main(int count, char** arguments)
{
    const auto* rounds = count > 1 ? arguments[1] : "500";
    if (count < 3) {
        brindlex::benchEachBackend(arguments[0], rounds);
        return 0;
    }
    const QCoreApplication application(count, arguments);
    return brindlex::benchHere(std::max(2, std::atoi(rounds))) ? 0 : 1;
}
