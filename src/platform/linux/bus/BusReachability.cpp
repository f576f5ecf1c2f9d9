#include "platform/linux/bus/BusReachability.h"

#include <memory>
#include <systemd/sd-bus.h>

namespace brindlex {
namespace {

using Clock = std::chrono::steady_clock;

struct CloseBus {
    void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
};
using Bus = std::unique_ptr<sd_bus, CloseBus>;

/// A connection that is being made, or null.
Bus beginConnection(const std::string& address)
{
    sd_bus* made = nullptr;
    if (sd_bus_new(&made) < 0)
        return {};
    Bus bus(made);
    const bool hasBegun = sd_bus_set_address(bus.get(), address.c_str()) >= 0
        && sd_bus_set_bus_client(bus.get(), true) >= 0 && sd_bus_start(bus.get()) >= 0;
    return hasBegun ? std::move(bus) : Bus();
}

/// Goes a step on; false when there is nothing more to hope for.
bool advance(sd_bus* bus, Clock::time_point end)
{
    const int progress = sd_bus_process(bus, nullptr);
    if (progress != 0)
        return progress > 0;
    const auto left = std::chrono::duration_cast<std::chrono::microseconds>(end - Clock::now());
    return left.count() > 0 && sd_bus_wait(bus, static_cast<std::uint64_t>(left.count())) >= 0;
}

} // namespace

bool isBusReplying(const std::string& address, std::chrono::milliseconds patience)
{
    if (address.empty() || address.starts_with("autolaunch:"))
        return false;
    const auto end = Clock::now() + patience;
    const auto bus = beginConnection(address);
    while (bus && Clock::now() < end) {
        if (sd_bus_is_ready(bus.get()) > 0)
            return true;
        if (!advance(bus.get(), end))
            return false;
    }
    return false;
}

} // namespace brindlex
