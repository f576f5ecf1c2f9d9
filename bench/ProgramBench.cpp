// What the whole program costs a user: the time from its start to being ready, what it holds in
// memory and how often it wakes while idle, and the time from an application coming to the front to
// its input source being selected. Each on a virtual desktop of its own with XKB layouts;
// `bench_program 200` plays 200 activations.
//
// "ready" is the line "Brindlex launched" in the log. "activation" is from the window manager
// naming the window to the server's keyboard having the group, seen by one other client.

#include "Distribution.h"
#include "platform/linux/x11/XkbProtocol.h"
#include "support/basics/Eventually.h"
#include "support/hardware/KeyboardGroup.h"
#include "support/processes/ProgramFiles.h"
#include "support/processes/RunningProgram.h"
#include "support/screen/DesktopWindows.h"
#include "support/screen/VirtualDesktop.h"
#include "support/screen/XConnection.h"
#include "support/switching/SwitchingRules.h"
#include "support/windows/InstalledApplication.h"
#include "support/windows/PlainWindow.h"

#include <poll.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace brindlex {
namespace {

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

void report(const char* what, std::vector<double> values, const char* unit)
{
    const auto all = distributionOf(std::move(values));
    std::printf("%-44s median %8.3f  p99 %8.3f  min %8.3f  max %8.3f  %s, n %zu\n", what,
        all.median, all.worstOfHundred, all.least, all.most, unit, all.count);
}

/// The number behind a key in one of the process's files under /proc.
long processValue(int process, const std::string& file, const std::string& key)
{
    std::ifstream stream("/proc/" + std::to_string(process) + "/" + file);
    for (std::string line; std::getline(stream, line);)
        if (line.starts_with(key))
            return std::strtol(line.c_str() + key.size(), nullptr, 10);
    return 0;
}

/// Wake-ups of all threads of the process.
long voluntarySwitches(int process)
{
    long sum = 0;
    const auto threads = "/proc/" + std::to_string(process) + "/task";
    for (const auto& thread : std::filesystem::directory_iterator(threads))
        sum += processValue(process, "task/" + thread.path().filename().string() + "/status",
            "voluntary_ctxt_switches:");
    return sum;
}

void measureStart()
{
    VirtualDesktop desktop;
    std::vector<double> milliseconds;
    for (int round = 0; round < 11; ++round) {
        const auto start = Clock::now();
        RunningProgram program(desktop);
        if (!program.launches())
            std::printf("%s\n", program.report().c_str());
        if (round > 0)
            milliseconds.push_back(millisecondsSince(start));
        program.quit();
    }
    report("start to ready, warm", milliseconds, "ms");
}

void measureIdle()
{
    constexpr int seconds = 10;
    VirtualDesktop desktop;
    RunningProgram program(desktop);
    program.launches();
    std::this_thread::sleep_for(std::chrono::seconds(3));
    const auto before = voluntarySwitches(program.process());
    std::this_thread::sleep_for(std::chrono::seconds(seconds));
    const auto wakes = voluntarySwitches(program.process()) - before;
    const auto memory = [&](const char* key) {
        return static_cast<double>(processValue(program.process(), "smaps_rollup", key)) / 1024;
    };
    std::printf("%-44s RSS %.1f MB  PSS %.1f MB  USS %.1f MB\n", "idle memory", memory("Rss:"),
        memory("Pss:"), memory("Private_Clean:") + memory("Private_Dirty:"));
    std::printf("%-44s %ld in %d s\n", "idle wake-ups of all threads", wakes, seconds);
}

/// Listens for the active window and for the keyboard group at once.
class Witness {
public:
    explicit Witness(const XConnection& server) : connection_(xcb_connect(nullptr, nullptr))
    {
        root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
        const auto name = xcb_intern_atom(connection_, 0, 18, "_NET_ACTIVE_WINDOW");
        auto* reply = xcb_intern_atom_reply(connection_, name, nullptr);
        active_ = reply->atom;
        std::free(reply);
        const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(connection_, root_, XCB_CW_EVENT_MASK, &mask);
        std::free(xcb_xkb_use_extension_reply(
            connection_, xcb_xkb_use_extension(connection_, 1, 0), nullptr));
        xkbEvent_ = xcb_get_extension_data(connection_, &xcb_xkb_id)->first_event;
        xcb_xkb_select_events_details_t details{};
        details.affectState = XCB_XKB_STATE_PART_GROUP_STATE;
        details.stateDetails = XCB_XKB_STATE_PART_GROUP_STATE;
        const std::uint16_t event = XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
        xcb_xkb_select_events_aux(
            connection_, XCB_XKB_ID_USE_CORE_KBD, event, 0, 0, 0, 0, &details);
        xcb_flush(connection_);
        static_cast<void>(server);
    }
    ~Witness() { xcb_disconnect(connection_); }
    Witness(const Witness&) = delete;
    Witness& operator=(const Witness&) = delete;

    /// The milliseconds between the next activation and the group change that follows it; negative
    /// when none follows within a second.
    double nextSwitch()
    {
        std::optional<Clock::time_point> activated;
        const auto start = Clock::now();
        pollfd socket{xcb_get_file_descriptor(connection_), POLLIN, 0};
        while (millisecondsSince(start) < 1000) {
            while (auto* event = xcb_poll_for_event(connection_)) {
                const auto type = event->response_type & 0x7F;
                const bool isActivation = type == XCB_PROPERTY_NOTIFY
                    && reinterpret_cast<xcb_property_notify_event_t*>(event)->atom == active_;
                std::free(event);
                if (isActivation)
                    activated = Clock::now();
                else if (type == xkbEvent_ && activated)
                    return millisecondsSince(*activated);
            }
            ::poll(&socket, 1, 10);
        }
        return -1;
    }

private:
    xcb_connection_t* connection_;
    xcb_window_t root_ = 0;
    xcb_atom_t active_ = 0;
    int xkbEvent_ = 0;
};

void measureActivation(int rounds)
{
    VirtualDesktop desktop;
    XConnection server;
    DesktopWindows windows(server);
    ProgramFiles files(desktop);
    SwitchingRules rules;
    installApplication(desktop, "org.example.Alpha", "Alpha");
    installApplication(desktop, "org.example.Beta", "Beta");
    rules.applications
        = {{"org.example.Alpha", "xkb:us::eng"}, {"org.example.Beta", "xkb:de::deu"}};
    files.writePreferences(rules.preferences());
    const PlainWindow alpha(server, {wmClass("Alpha"), {}, "Alpha"});
    const PlainWindow beta(server, {wmClass("Beta"), {}, "Beta"});
    windows.activate(alpha.window());
    RunningProgram program(desktop);
    program.launches();
    const auto settle = [&](const PlainWindow& window, int group) {
        if (!windows.activate(window.window())
            || !eventually([&] { return keyboardGroup(server) == group; }))
            std::printf("%s\n", program.report().c_str());
    };
    settle(beta, 1);
    settle(alpha, 0);

    Witness witness(server);
    std::vector<double> milliseconds;
    int missed = 0;
    for (int round = 0; round < rounds; ++round) {
        windows.requestActivation(round % 2 == 0 ? beta.window() : alpha.window());
        const double latency = witness.nextSwitch();
        if (latency < 0)
            ++missed;
        else
            milliseconds.push_back(latency);
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    report("activation to source selected, XKB", milliseconds, "ms");
    std::printf("%-44s %d\n", "activations that were not followed", missed);
}

} // namespace
} // namespace brindlex

int main(int count, char** arguments)
{
    brindlex::measureStart();
    brindlex::measureIdle();
    brindlex::measureActivation(count > 1 ? std::atoi(arguments[1]) : 200);
}
