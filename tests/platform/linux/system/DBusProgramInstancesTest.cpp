#include "platform/linux/system/DBusProgramInstances.h"

#include "support/basics/Eventually.h"
#include "support/basics/RecordedLog.h"
#include "support/bus/PrivateBus.h"
#include "support/processes/ChildProcess.h"

#include <gtest/gtest.h>

#include <chrono>
#include <unistd.h>

namespace brindlex {
namespace {

using Processes = std::vector<ProgramInstances::ProcessIdentifier>;

const std::string program = "com.brindlex.Brindlex";
const std::vector<std::string> noBusIsLogged{
    "WARN [lifecycle] No session bus: other instances are not known"};

Processes onlyThisProcess() { return {ProcessIdentity{::getpid()}}; }

TEST(DBusProgramInstances, knowsOnlyOfItselfWithoutABusAndSaysSoOnce)
{
    const RecordedLog log;
    SessionBus bus("unix:path=/nonexistent/bus");
    DBusProgramInstances instances(bus, program, [](auto) {});
    EXPECT_EQ(instances.running(program), onlyThisProcess());
    EXPECT_EQ(instances.running("org.example.Another"), Processes{});
    EXPECT_EQ(log.lines(), noBusIsLogged);
}

TEST(DBusProgramInstances, startsNoBusByItself)
{
    SessionBus none("");
    EXPECT_FALSE(none.isConnected());
    SessionBus automatic("autolaunch:");
    EXPECT_FALSE(automatic.isConnected());
}

TEST(DBusProgramInstances, knowsOnlyOfItselfOnceTheBusHasGone)
{
    PrivateBus daemon;
    SessionBus bus(daemon.address());
    DBusProgramInstances instances(bus, program, [](auto) {});
    EXPECT_EQ(instances.running(program), onlyThisProcess());
    daemon.end();
    EXPECT_EQ(instances.running(program), onlyThisProcess());
}

TEST(DBusProgramInstances, doesNotWaitForABusThatDoesNotReply)
{
    PrivateBus daemon;
    SessionBus bus(daemon.address());
    DBusProgramInstances instances(bus, program, [](auto) {});
    daemon.freeze();
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(instances.running(program), onlyThisProcess());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST(DBusProgramInstances, handsActivationOn)
{
    SessionBus bus("");
    Processes activated;
    DBusProgramInstances instances(
        bus, program, [&](auto process) { activated.push_back(process); });
    instances.activate(ProcessIdentity{42});
    EXPECT_EQ(activated, Processes{ProcessIdentity{42}});
}

TEST(DBusProgramInstances, endsTheLoopEvenWhenAskedBeforeItRuns)
{
    const PrivateBus daemon;
    EXPECT_EQ(
        run({.command = {PLATFORM_PROCESS, "terminate", daemon.address(), program}}, usualDeadline),
        (ProcessEnd{0, {}}));
}

} // namespace
} // namespace brindlex
