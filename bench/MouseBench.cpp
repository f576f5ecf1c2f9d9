// What one event costs between the system and the applications.

#include "CountedAllocations.h"
#include "eventtap/GlobalEventTap.h"
#include "mouse/MouseGesture.h"
#include "mouse/ScrollMotion.h"
#include "platform/simulated/SimulatedEventPermissions.h"
#include "platform/simulated/SimulatedInput.h"
#include "platform/simulated/SimulatedProgramActivation.h"

#include <benchmark/benchmark.h>

namespace brindlex {
namespace {

class Allocations {
public:
    explicit Allocations(benchmark::State& state) : state_(state), before_(countedAllocations()) { }
    ~Allocations()
    {
        state_.counters["allocations"]
            = benchmark::Counter(static_cast<double>(countedAllocations() - before_),
                benchmark::Counter::kAvgIterations);
    }

private:
    benchmark::State& state_;
    std::int64_t before_;
};

/// Aim: below 200 ns, no allocation.
void dispatchThroughTenSubscriptions(benchmark::State& state)
{
    SimulatedInput input;
    SimulatedEventPermissions permissions;
    SimulatedProgramActivation activation;
    GlobalEventTap tap(input, permissions, activation);
    long calls = 0;
    for (int subscriber = 0; subscriber < 10; ++subscriber)
        tap.subscribe(0x6000000, [&calls](const Event&) {
            ++calls;
            return EventVerdict::pass;
        });
    const Event event{EventType::otherMouseDown, {}, 0, {{EventField::mouseEventButtonNumber, 3}}};
    const auto handler = input.newestHandler();
    const Allocations count(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(handler(event));
    benchmark::DoNotOptimize(calls);
}
BENCHMARK(dispatchThroughTenSubscriptions);

/// Aim: below 100 ns, no allocation.
void gestureStepOfADrag(benchmark::State& state)
{
    MouseGestureConfig config;
    config.distanceThreshold = 1e9;
    for (const auto direction : allCases<MouseDirection>())
        config.bindings.push_back(
            {{}, MouseButton::button4, {}, direction, MouseAction::Plain::forward});
    const std::function<MouseResizeDragDecision(Point)> decide
        = [](Point) { return MouseResizeDragDecision{}; };
    MouseGestureState pending;
    Event event{EventType::otherMouseDown, {}, 0, {{EventField::mouseEventButtonNumber, 3}}};
    reduceMouseGesture(event, pending, config, Date{0}, 1, decide);
    event.type = EventType::otherMouseDragged;
    const Allocations count(state);
    for (auto _ : state) {
        event.location.x += 0.5;
        benchmark::DoNotOptimize(reduceMouseGesture(event, pending, config, Date{1}, 1, decide));
    }
}
BENCHMARK(gestureStepOfADrag);

/// Aim: below 100 ns, no allocation.
void frameOfTheSmoother(benchmark::State& state)
{
    ScrollMotion motion;
    Seconds now = 1;
    const Allocations count(state);
    for (auto _ : state) {
        motion.remainingY = 1000;
        now += 1.0 / 60;
        benchmark::DoNotOptimize(motion.advance(now, 0.18));
    }
}
BENCHMARK(frameOfTheSmoother);

} // namespace
} // namespace brindlex

BENCHMARK_MAIN();
