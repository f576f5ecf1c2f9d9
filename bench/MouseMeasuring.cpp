#include "MouseMeasuring.h"

#include "MousePeers.h"

#include <cstdio>

namespace brindlex {
namespace {

void printAbsence(const std::string& program, const char* reason)
{
    std::printf("%-52s %s\n", program.c_str(), reason);
}

} // namespace

double milliseconds(std::chrono::steady_clock::duration time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

void printHeading(const char* heading)
{
    std::printf("\n%-52s %9s %9s %9s %6s\n", heading, "median", "p99", "most", "n");
}

void print(const std::string& what, const Distribution& all, const std::string& remark)
{
    std::printf("%-52s %9.3f %9.3f %9.3f %6zu  %s\n", what.c_str(), all.median, all.worstOfHundred,
        all.most, all.count, remark.c_str());
}

void endProgram(MouseDesk& desk)
{
    for (const auto& message : desk.program->messages())
        if (message.starts_with("GlobalEventTap: ") || message.starts_with("Input watchdog: "))
            std::printf("  the log says: %s\n", message.c_str());
    desk.program->quit();
    desk.program.reset();
    desk.givesDevicesBack();
}

void withPeer(const std::string& name,
    const std::function<std::unique_ptr<ChildProcess>()>& startPeer,
    const std::function<void(const ChildProcess&)>& measure)
{
    if (!isInstalled(name))
        return printAbsence(name, "is not installed");
    const auto peer = startPeer();
    if (!peer)
        return printAbsence(name, "did not take its button");
    measure(*peer);
}

MouseConfig smoothWheel()
{
    MouseConfig config;
    config.scroll.smoothEnabled = true;
    return config;
}

} // namespace brindlex
