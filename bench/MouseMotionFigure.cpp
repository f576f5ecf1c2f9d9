#include "MouseFigures.h"
#include "MouseMeasuring.h"
#include "ProcessorTime.h"

#include <chrono>
#include <cstdio>
#include <thread>
#include <utility>

namespace brindlex {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

void measureMotion(
    const std::string& name, const MouseDesk& desk, const TargetWindow& target, double distance = 3)
{
    constexpr int motions = 3000;
    const auto server = processOfServer(desk.server);
    const auto process = desk.program ? desk.program->process() : -1;
    const auto serverBefore = secondsUsedBy(server);
    const auto processBefore = desk.program ? secondsUsedBy(process) : 0;
    const auto begin = Clock::now();
    for (int motion = 0; motion < motions; ++motion) {
        if (distance != 0)
            desk.mouse.move(motion % 2 ? distance : -distance, 0);
        std::this_thread::sleep_until(begin + (motion + 1) * 1ms);
    }
    desk.mouse.settle();
    // By the motion, as the motions come later on a computer that has no time.
    const auto load = [&](double used) { return 1000 * used * 1000 / motions; };
    const auto processUsed = desk.program ? secondsUsedBy(process) - processBefore : 0;
    std::printf("%-52s %9.1f %9.1f\n", name.c_str(), load(processUsed),
        load(secondsUsedBy(server) - serverBefore));
    target.forget();
}

MouseConfig leftGesture()
{
    MouseConfig config;
    config.gesture.bindings = {gesture(
        MouseButton::left, {}, MouseDirection::right, MouseAction::Plain::switchSpaceRight)};
    return config;
}

} // namespace

void measureMotions(MouseDesk& desk, const TargetWindow& target)
{
    std::printf("\n%-52s %9s %9s\n", "1,000 motions a second, CPU ms/s", "program", "server");
    measureMotion("without the program", desk, target);
    for (const auto& [name, config] : {std::pair{"nothing configured", MouseConfig{}},
             std::pair{"a gesture of the left button", leftGesture()},
             std::pair{"a smooth wheel", smoothWheel()}}) {
        desk.start(config);
        measureMotion(std::string(name) + ", mouse at rest", desk, target, 0);
        measureMotion(name, desk, target);
        endProgram(desk);
    }
}

} // namespace brindlex
