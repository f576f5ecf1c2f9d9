#include "MouseFigures.h"
#include "MouseMeasuring.h"
#include "platform/linux/system/QtMainThread.h"
#include "platform/linux/windows/RandRDisplayLink.h"
#include "platform/posix/PosixClock.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <stop_token>
#include <thread>

namespace brindlex {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int notchesOfTurn = 20;
constexpr Seconds timeOfNotch = 0.005;

/// How often the program makes a step: with the frames of the screen, and at most 60 times.
double framesPerSecond()
{
    QtMainThread mainThread;
    const PosixClock clock;
    X11Connection connection;
    const RandRDisplayLink screen(connection, mainThread, clock);
    return std::min(60.0, screen.maximumFramesPerSecond().value_or(60));
}

/// When the notches of one quick turn came.
std::vector<Clock::time_point> turnQuickly(const MouseDesk& desk, const TargetWindow& target)
{
    std::vector<Clock::time_point> came;
    target.forget();
    const auto begin = Clock::now();
    constexpr std::chrono::duration<double> interval{timeOfNotch};
    for (int notch = 0; notch < notchesOfTurn; ++notch) {
        const auto nextNotch
            = begin + std::chrono::duration_cast<Clock::duration>((notch + 1) * interval);
        desk.mouse.turnWheel(1);
        while (const auto event = target.next(XCB_BUTTON_PRESS, nextNotch))
            came.push_back(*event);
        desk.mouse.settle();
    }
    while (const auto event = target.next(XCB_BUTTON_PRESS))
        came.push_back(*event);
    return came;
}

void measureScrolls(const std::string& name, const MouseDesk& desk, const TargetWindow& target)
{
    const double frameRate = framesPerSecond();
    const double frame = 1000 / frameRate;
    // Notches of one frame follow each other as fast as the application takes them.
    const double sameFrame = frame / 4;
    std::vector<double> intervals;
    std::vector<double> strays;
    std::vector<double> distances;
    for (int round = 0; round < 12; ++round) {
        const auto came = turnQuickly(desk, target);
        distances.push_back(std::abs(static_cast<double>(came.size()) - notchesOfTurn));
        for (std::size_t index = 1; index < came.size(); ++index) {
            const double interval = milliseconds(came[index] - came[index - 1]);
            if (interval < sameFrame)
                continue;
            intervals.push_back(interval);
            strays.push_back(std::abs(interval - frame * std::round(interval / frame)));
        }
    }
    print(name + ": between steps, ms", distributionOf(std::move(intervals)));
    print(name + ": off the beat of the frames, ms", distributionOf(std::move(strays)));
    print(name + ": arrived against turned, notches", distributionOf(std::move(distances)));
}

} // namespace

void measureSmoothness(MouseDesk& desk, const TargetWindow& target)
{
    printHeading("one smooth scroll of 20 notches");
    std::printf("%-52s %9.3f\n", "from step to step, ms", 1000 / framesPerSecond());
    desk.start(smoothWheel());
    measureScrolls("idle", desk, target);
    {
        const std::jthread busy([](const std::stop_token& stop) {
            while (!stop.stop_requested())
                continue;
        });
        measureScrolls("one core busy", desk, target);
    }
    endProgram(desk);
}

} // namespace brindlex
