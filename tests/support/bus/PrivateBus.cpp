#include "support/bus/PrivateBus.h"

#include "foundation/FatalError.h"
#include "support/basics/DescriptorLine.h"

#include <csignal>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

constexpr auto timeForBus = 60s;

/// What a session bus allows, and no folder with services.
constexpr auto withoutServices = R"(<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

} // namespace

PrivateBus::PrivateBus()
{
    const auto configuration = folder_.path() / "bus.conf";
    write(configuration, withoutServices);
    DescriptorLine address;
    daemon_.emplace(ChildProcess::Start{
        .command = {"dbus-daemon", "--config-file=" + configuration.string(), "--nofork",
            "--nopidfile", "--print-address=" + std::to_string(address.writingEnd())},
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
