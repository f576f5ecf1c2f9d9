#include "MouseFigures.h"
#include "MouseMeasuring.h"
#include "MousePeers.h"
#include "ProcessorTime.h"

#include <chrono>
#include <cstdio>
#include <optional>
#include <utility>

namespace brindlex {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// A single notch of a wheel that stood still.
void measureNotch(const std::string& name, const MouseDesk& desk, const TargetWindow& target)
{
    std::vector<double> times;
    // Longer than any scroll takes to come to its end.
    constexpr auto silence = 400ms;
    constexpr int rounds = 30;
    for (int round = 0; round < rounds; ++round) {
        target.forget();
        const auto start = Clock::now();
        desk.mouse.turnWheel(1);
        if (const auto first = target.next(XCB_BUTTON_PRESS))
            times.push_back(milliseconds(*first - start));
        while (target.next(XCB_BUTTON_PRESS, Clock::now() + silence))
            continue;
    }
    print(name + ": one notch", distributionOf(std::move(times)));
}

/// 100 notches a second, and what that costs the server and the process, if there is one.
void measureTurning(const std::string& name, const MouseDesk& desk, const TargetWindow& target,
    std::optional<pid_t> process)
{
    constexpr int notches = 400;
    std::vector<double> times;
    int arrived = 0;
    const auto server = processOfServer(desk.server);
    const auto serverBefore = secondsUsedBy(server);
    const auto processBefore = process ? secondsUsedBy(*process) : 0;
    target.forget();
    const auto begin = Clock::now();
    for (int notch = 0; notch < notches; ++notch) {
        const auto start = Clock::now();
        desk.mouse.turnWheel(1);
        bool isFirst = true;
        while (const auto came = target.next(XCB_BUTTON_PRESS, begin + (notch + 1) * 10ms)) {
            ++arrived;
            if (std::exchange(isFirst, false))
                times.push_back(milliseconds(*came - start));
        }
        desk.mouse.settle();
    }
    // By the notch, as the notches come later on a computer that has no time.
    const auto load = [&](double used) { return 1000 * used * 100 / notches; };
    const auto serverLoad = load(secondsUsedBy(server) - serverBefore);
    const auto processLoad = process ? load(secondsUsedBy(*process) - processBefore) : 0;
    while (target.next(XCB_BUTTON_PRESS, Clock::now() + 2s))
        ++arrived;
    char remark[96];
    std::snprintf(remark, sizeof(remark), "CPU ms/s %.1f, server %.1f; in %d, out %d", processLoad,
        serverLoad, notches, arrived);
    print(name + ": 100 notches/s", distributionOf(std::move(times)), remark);
}

void measureWheel(const std::string& name, const MouseDesk& desk, const TargetWindow& target,
    std::optional<pid_t> process = {})
{
    measureNotch(name, desk, target);
    measureTurning(name, desk, target, process);
}

/// The wheel the other way round, so that each notch is another one at once.
MouseConfig invertedWheel()
{
    MouseConfig config;
    config.scroll.invertVertical = true;
    return config;
}

} // namespace

void measureWheels(MouseDesk& desk, const TargetWindow& target)
{
    printHeading("wheel -> first wheel event at the application, ms");
    measureWheel("bare server", desk, target);
    for (const auto& [name, config] : {std::pair{"Brindlex, inverted", invertedWheel()},
             std::pair{"Brindlex, smooth", smoothWheel()}}) {
        desk.start(config);
        measureWheel(name, desk, target, desk.program->process());
        endProgram(desk);
    }
    withPeer(
        "imwheel", [&] { return startImwheel(desk.desktop, desk.server); },
        [&](const ChildProcess& peer) { measureWheel("imwheel", desk, target, peer.id()); });
}

} // namespace brindlex
