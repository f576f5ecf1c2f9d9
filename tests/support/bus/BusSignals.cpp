#include "support/bus/BusSignals.h"

#include <systemd/sd-bus.h>

namespace brindlex {

BusSignals::BusSignals(const std::string& interface) : interface_(interface)
{
    sd_bus_open_user(&bus_);
    const auto match = "type='signal',interface='" + interface + "'";
    sd_bus_call_method(bus_, "org.freedesktop.DBus", "/org/freedesktop/DBus",
        "org.freedesktop.DBus", "AddMatch", nullptr, nullptr, "s", match.c_str());
}

BusSignals::~BusSignals() { sd_bus_flush_close_unref(bus_); }

const std::vector<std::vector<std::string>>& BusSignals::received()
{
    sd_bus_message* message = nullptr;
    while (sd_bus_process(bus_, &message) > 0) {
        if (message && sd_bus_message_is_signal(message, interface_.c_str(), nullptr) > 0) {
            std::vector<std::string> signal{sd_bus_message_get_member(message)};
            const char* text = nullptr;
            while (sd_bus_message_read_basic(message, SD_BUS_TYPE_STRING, &text) > 0)
                signal.emplace_back(text);
            received_.push_back(signal);
        }
        message = sd_bus_message_unref(message);
    }
    return received_;
}

} // namespace brindlex
