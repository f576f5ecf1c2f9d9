#include "support/bus/PrivateBus.h"

#include "foundation/FatalError.h"
#include "support/basics/DescriptorLine.h"

#include <csignal>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr auto timeForBus = 60s;

} // namespace

PrivateBus::PrivateBus()
{
    DescriptorLine address;
    daemon_.emplace(ChildProcess::Start{
        .command
        = {"dbus-daemon", "--session", "--nofork", "--nopidfile", "--address=unix:tmpdir=/tmp",
            "--print-address=" + std::to_string(address.writingEnd())},
        .inherited = address.writingEnd(),
    });
    const auto line = address.read(timeForBus);
    if (!line)
        fatalError("The session bus did not start.");
    address_ = *line;
}

void PrivateBus::end()
{
    daemon_->signal(SIGKILL);
    daemon_->waitForEnd(timeForBus);
}

void PrivateBus::freeze() { daemon_->signal(SIGSTOP); }

} // namespace brindlex
