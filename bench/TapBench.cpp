#include "Distribution.h"
#include "ProcessorTime.h"
#include "TargetWindow.h"
#include "support/basics/Eventually.h"
#include "support/hardware/PlayedHardware.h"
#include "support/processes/ChildProcess.h"
#include "support/screen/VirtualDesktop.h"

#include <chrono>
#include <cstdio>
#include <functional>
#include <thread>

namespace brindlex {
namespace {

using Clock = std::chrono::steady_clock;
using Microseconds = std::chrono::duration<double, std::micro>;

constexpr int samples = 400;

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
    Distribution times{};
    int lost = 0;
};

Latency measure(const Deed& deed, const Hands& hands, const TargetWindow& target)
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
    latency.times = distributionOf(std::move(times));
    return latency;
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

std::vector<Latency> measureAll(const Hands& hands, const TargetWindow& target)
{
    std::vector<Latency> latencies;
    for (const auto& deed : deeds())
        latencies.push_back(measure(deed, hands, target));
    return latencies;
}

void print(const std::string& tier, const char* deed, const Latency& without, const Latency& with)
{
    std::printf("%-10s %-14s %8.0f %8.0f %8.0f %8.0f %7.2f %7.2f %6d\n", tier.c_str(), deed,
        without.times.median, with.times.median, without.times.worstOfHundred,
        with.times.worstOfHundred, with.times.median / without.times.median,
        with.times.worstOfHundred / without.times.worstOfHundred, without.lost + with.lost);
}

} // namespace
} // namespace brindlex

/// How much later an event arrives through the tap, from the device to the application, tier by
/// tier on one X server in one run, each beside the bare server right before.
int main()
{
    using namespace brindlex;
    const VirtualDesktop desktop({.windowManager = WindowManager::none,
        .sessionBus = false,
        .server = VirtualDesktop::Server::withPlayedHardware});
    const Hands hands{PlayedMouse(desktop), PlayedKeyboard(desktop)};
    const TargetWindow target;
    std::printf("%-10s %-14s %8s %8s %8s %8s %7s %7s %6s\n", "tap", "event", "bare p50", "p50 us",
        "bare p99", "p99 us", "x p50", "x p99", "lost");
    for (const std::string tier : {"triggers", "gesture", "modified", "mice", "keyboards"}) {
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
