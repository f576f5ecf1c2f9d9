// What the whole program costs a user: the time from its start to being ready, what it holds in
// memory and how often it wakes while idle, and the time from an application coming to the front to
// its input source being selected. Each on a virtual desktop of its own with XKB layouts;
// `bench_program 200` plays 200 activations.
//
// "ready" is the line "Brindlex launched" in the log. "activation" is from the window manager
// naming the window to the server's keyboard having the group, seen by one other client.

#include "Distribution.h"
#include "GroupWitness.h"
#include "ProcessStatus.h"
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

#include <chrono>
#include <cstdio>
#include <cstdlib>
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
    printDistribution("start to ready, warm", milliseconds, "ms");
}

void measureIdle()
{
    constexpr int seconds = 10;
    VirtualDesktop desktop;
    RunningProgram program(desktop);
    program.launches();
    // It looks once, five seconds after its launch, whether a tray has taken its icon.
    std::this_thread::sleep_for(std::chrono::seconds(6));
    const auto before = sleepsOf(program.process());
    std::this_thread::sleep_for(std::chrono::seconds(seconds));
    const auto wakes = sleepsOf(program.process()) - before;
    const auto memory = memoryOf(program.process());
    std::printf("%-44s RSS %.1f MB  PSS %.1f MB  USS %.1f MB\n", "idle memory", memory.resident,
        memory.proportional, memory.unique);
    std::printf("%-44s %ld in %d s\n", "idle wake-ups of all threads", wakes, seconds);
}

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

    GroupWitness witness(server.root(), "_NET_ACTIVE_WINDOW");
    std::vector<double> milliseconds;
    int missed = 0;
    for (int round = 0; round < rounds; ++round) {
        windows.requestActivation(round % 2 == 0 ? beta.window() : alpha.window());
        const double latency = witness.nextSwitch([] { return true; }, std::chrono::seconds(1));
        if (latency < 0)
            ++missed;
        else
            milliseconds.push_back(latency);
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    printDistribution("activation to source selected, XKB", milliseconds, "ms");
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
