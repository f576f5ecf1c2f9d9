#include "support/browsers/AccessibleProgram.h"

#include <fstream>
#include <string_view>

namespace brindlex {
namespace {

constexpr std::string_view objects = "/org/a11y/atspi/accessible/";
constexpr auto root = "/org/a11y/atspi/accessible/root";

/// The accessibility bus, as its launcher on the session bus names it.
sd_bus* accessibilityBus()
{
    sd_bus* session = nullptr;
    sd_bus_message* reply = nullptr;
    const char* address = nullptr;
    sd_bus* bus = nullptr;
    if (sd_bus_open_user(&session) < 0
        || sd_bus_call_method(session, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus",
               "GetAddress", nullptr, &reply, "")
            < 0
        || sd_bus_message_read(reply, "s", &address) < 0 || sd_bus_new(&bus) < 0
        || sd_bus_set_address(bus, address) < 0 || sd_bus_set_bus_client(bus, 1) < 0
        || sd_bus_start(bus) < 0)
        return nullptr;
    return bus;
}

int take(sd_bus_message* message, void* handler, sd_bus_error*)
{
    const auto* path = sd_bus_message_get_path(message);
    if (!sd_bus_message_is_method_call(message, nullptr, nullptr) || !path
        || !std::string_view(path).starts_with(objects))
        return 0;
    const auto& reply = *static_cast<AccessibleProgram::MethodHandler*>(handler);
    return reply(message, std::string(path).substr(objects.size()));
}

} // namespace

AccessibleProgram::AccessibleProgram() : bus_(accessibilityBus())
{
    const char* service = nullptr;
    if (bus_ && sd_bus_get_unique_name(bus_, &service) >= 0)
        service_ = service;
}

AccessibleProgram::~AccessibleProgram() { sd_bus_unref(bus_); }

void AccessibleProgram::append(sd_bus_message* reply, const std::string& object) const
{
    sd_bus_message_append(reply, "(so)", service_.c_str(), (std::string(objects) + object).c_str());
}

void AccessibleProgram::appendNone(sd_bus_message* reply)
{
    sd_bus_message_append(reply, "(so)", "", "/org/a11y/atspi/null");
}

int AccessibleProgram::reply(
    sd_bus_message* question, const std::function<bool(sd_bus_message* reply)>& fill)
{
    sd_bus_message* reply = nullptr;
    sd_bus_message_new_method_return(question, &reply);
    const int sent = fill(reply)
        ? sd_bus_send(nullptr, reply, nullptr)
        : sd_bus_reply_method_errorf(question, SD_BUS_ERROR_UNKNOWN_METHOD, "No");
    sd_bus_message_unref(reply);
    return sent < 0 ? sent : 1;
}

int AccessibleProgram::run(const std::string& folder, MethodHandler handler) const
{
    sd_bus_add_filter(bus_, nullptr, take, &handler);
    if (sd_bus_call_method(bus_, "org.a11y.atspi.Registry", root, "org.a11y.atspi.Socket", "Embed",
            nullptr, nullptr, "(so)", service_.c_str(), root)
        < 0)
        return 2;
    std::ofstream(folder + "/ready") << "ready";
    while (sd_bus_process(bus_, nullptr) >= 0)
        if (sd_bus_wait(bus_, UINT64_MAX) < 0)
            return 3;
    return 0;
}

} // namespace brindlex
