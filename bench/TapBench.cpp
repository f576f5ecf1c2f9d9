#include "support/ChildProcess.h"
#include "support/Eventually.h"
#include "support/PlayedHardware.h"
#include "support/VirtualDesktop.h"
#include "support/XConnection.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <functional>
#include <poll.h>
#include <sstream>
#include <thread>
#include <unistd.h>

namespace brindlex {
namespace {

using Clock = std::chrono::steady_clock;
using Microseconds = std::chrono::duration<double, std::micro>;

constexpr int samples = 400;
constexpr std::chrono::milliseconds timeToArrive{500};

/// A window over the whole screen that waits for one event at a time.
class Target {
public:
    Target() : window_(xcb_generate_id(server_.get()))
    {
        const std::uint32_t values[]{1,
            XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE | XCB_EVENT_MASK_BUTTON_PRESS
                | XCB_EVENT_MASK_BUTTON_RELEASE | XCB_EVENT_MASK_POINTER_MOTION};
        xcb_create_window(server_.get(), XCB_COPY_FROM_PARENT, window_, server_.root(), 0, 0, 1280,
            800, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
            XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
        xcb_map_window(server_.get(), window_);
        xcb_warp_pointer(server_.get(), XCB_NONE, server_.root(), 0, 0, 0, 0, 640, 400);
        eventually([this] {
            xcb_set_input_focus(server_.get(), XCB_INPUT_FOCUS_PARENT, window_, XCB_CURRENT_TIME);
            const XReply<xcb_get_input_focus_reply_t> reply(xcb_get_input_focus_reply(
                server_.get(), xcb_get_input_focus(server_.get()), nullptr));
            return reply && reply->focus == window_;
        });
    }

    void forget() const
    {
        server_.sync();
        while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(server_.get())})
            continue;
    }

    /// When the next event of the type came; nothing when none did.
    std::optional<Clock::time_point> next(std::uint8_t type) const
    {
        const auto deadline = Clock::now() + timeToArrive;
        while (Clock::now() < deadline) {
            while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(server_.get())})
                if ((event->response_type & 0x7F) == type)
                    return Clock::now();
            pollfd descriptor{xcb_get_file_descriptor(server_.get()), POLLIN, 0};
            poll(&descriptor, 1, 10);
        }
        return {};
    }

private:
    XConnection server_;
    xcb_window_t window_;
};

struct Hands {
    PlayedMouse mouse;
    PlayedKeyboard keyboard;
};

/// Something that a user does, the event that an application then gets, and how it ends.
struct Deed {
    using Move = std::function<void(const Hands&)>;

    const char* name;
    std::uint8_t type;
    std::function<void(const Hands&, int)> begin;
    Move end = [](const Hands&) {};
    /// Around all of them.
    Move prepare = [](const Hands&) {};
    Move finish = [](const Hands&) {};
};

void moveToAndFro(const Hands& hands, int round) { hands.mouse.move(round % 2 ? 4 : -4, 0); }

const std::vector<Deed>& deeds()
{
    static const std::vector<Deed> all{
        {"left button", XCB_BUTTON_PRESS, [](const Hands& hands, int) { hands.mouse.press(1); },
            [](const Hands& hands) { hands.mouse.release(1); }},
        {"middle button", XCB_BUTTON_PRESS, [](const Hands& hands, int) { hands.mouse.press(2); },
            [](const Hands& hands) { hands.mouse.release(2); }},
        {"key", XCB_KEY_PRESS, [](const Hands& hands, int) { hands.keyboard.press(38); },
            [](const Hands& hands) { hands.keyboard.release(38); }},
        {"wheel", XCB_BUTTON_PRESS, [](const Hands& hands, int) { hands.mouse.turnWheel(1); }},
        {"motion", XCB_MOTION_NOTIFY, moveToAndFro},
        {.name = "drag",
            .type = XCB_MOTION_NOTIFY,
            .begin = moveToAndFro,
            .prepare = [](const Hands& hands) { hands.mouse.press(1); },
            .finish = [](const Hands& hands) { hands.mouse.release(1); }},
    };
    return all;
}

struct Latency {
    double median = 0;
    double worstOfHundred = 0;
    int lost = 0;
};

Latency measure(const Deed& deed, const Hands& hands, const Target& target)
{
    std::vector<double> times;
    Latency latency;
    deed.prepare(hands);
    hands.mouse.settle();
    for (int round = 0; round < samples; ++round) {
        target.forget();
        const auto begin = Clock::now();
        deed.begin(hands, round);
        if (const auto end = target.next(deed.type))
            times.push_back(Microseconds(*end - begin).count());
        else
            ++latency.lost;
        deed.end(hands);
        hands.mouse.settle();
        hands.keyboard.settle();
    }
    deed.finish(hands);
    hands.mouse.settle();
    std::ranges::sort(times);
    if (!times.empty()) {
        latency.median = times[times.size() / 2];
        latency.worstOfHundred = times[times.size() * 99 / 100];
    }
    return latency;
}

/// Processor time that a process has used so far.
double secondsUsedBy(int process)
{
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::string text;
    std::getline(file, text);
    std::istringstream fields(text.substr(text.rfind(')') + 1));
    std::string skipped;
    for (int field = 3; field < 14; ++field)
        fields >> skipped;
    double user = 0;
    double system = 0;
    fields >> user >> system;
    return (user + system) / static_cast<double>(sysconf(_SC_CLK_TCK));
}

/// The share of one processor that the program takes while the mouse sends 1,000 motions a second.
double loadOfMotion(int process, const Hands& hands)
{
    constexpr int motions = 3000;
    const auto before = secondsUsedBy(process);
    const auto begin = Clock::now();
    for (int count = 0; count < motions; ++count) {
        hands.mouse.move(count % 2 ? 3 : -3, 0);
        std::this_thread::sleep_until(begin + std::chrono::milliseconds(count + 1));
    }
    hands.mouse.settle();
    return (secondsUsedBy(process) - before)
        / std::chrono::duration<double>(Clock::now() - begin).count();
}

std::vector<Latency> measureAll(const Hands& hands, const Target& target)
{
    std::vector<Latency> latencies;
    for (const auto& deed : deeds())
        latencies.push_back(measure(deed, hands, target));
    return latencies;
}

void print(const std::string& tier, const char* deed, const Latency& without, const Latency& with)
{
    std::printf("%-10s %-14s %8.0f %8.0f %8.0f %8.0f %7.2f %7.2f %6d\n", tier.c_str(), deed,
        without.median, with.median, without.worstOfHundred, with.worstOfHundred,
        with.median / without.median, with.worstOfHundred / without.worstOfHundred,
        without.lost + with.lost);
}

} // namespace
} // namespace brindlex

/// How much later an event arrives through the tap, from the device to the application, tier by
/// tier on one X server in one run, each beside the bare server right before.
int main()
{
    using namespace brindlex;
    const VirtualDesktop desktop({.windowManager = false,
        .sessionBus = false,
        .server = VirtualDesktop::Server::withPlayedHardware});
    const Hands hands{PlayedMouse(desktop), PlayedKeyboard(desktop)};
    const Target target;
    std::printf("%-10s %-14s %8s %8s %8s %8s %7s %7s %6s\n", "tap", "event", "bare p50", "p50 us",
        "bare p99", "p99 us", "x p50", "x p99", "lost");
    for (const std::string tier : {"triggers", "gesture", "mice", "keyboards"}) {
        const auto without = measureAll(hands, target);
        const ChildProcess program({.command = {std::filesystem::read_symlink("/proc/self/exe")
                                                    .replace_filename("brindlex_tap_program"),
                                        tier, "quiet"},
            .output = desktop.outputFolder() / tier});
        if (!eventually([&] { return program.output().find("ready") != std::string::npos; }))
            return EXIT_FAILURE;
        const auto with = measureAll(hands, target);
        for (std::size_t index = 0; index < deeds().size(); ++index)
            print(tier, deeds()[index].name, without[index], with[index]);
        std::printf("%-10s 1,000 motions/s: %.1f %% of a processor\n", tier.c_str(),
            100 * loadOfMotion(program.id(), hands));
    }
}
