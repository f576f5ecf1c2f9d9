#include "support/windows/AccessibleControls.h"

#include "support/basics/Eventually.h"

#include <utility>

namespace brindlex {
namespace {

constexpr auto accessible = "org.a11y.atspi.Accessible";
constexpr auto root = "/org/a11y/atspi/accessible/root";
/// Of the states in https://docs.gtk.org/atspi2/enum.StateType.html.
constexpr std::uint32_t showing = 1U << 25U;
/// Of a place: from the corner of the screen.
constexpr std::uint32_t onTheScreen = 0;

} // namespace

AccessibleControls::AccessibleControls(int process)
    : process_(process),
      bus_(std::make_unique<BusConnection>(
          BusConnection()
              .call("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")
              .text()))
{
}

std::optional<ScreenArea> AccessibleControls::find(
    const std::string& role, const std::string& name) const
{
    std::optional<ScreenArea> area;
    eventually([&] {
        area = findNow(role, name);
        return area.has_value();
    });
    return area;
}

std::optional<ScreenArea> AccessibleControls::findNow(
    const std::string& role, const std::string& name) const
{
    std::optional<ScreenArea> area;
    visitAll([&](const Object& object) {
        if (roleOf(object) == role && nameOf(object).starts_with(name))
            area = areaOf(object);
        return area.has_value();
    });
    return area;
}

bool AccessibleControls::says(const std::string& beginning) const
{
    return eventually([&] {
        return visitAll(
            [&](const Object& object) { return nameOf(object).starts_with(beginning); });
    });
}

std::string AccessibleControls::report() const
{
    std::string lines;
    visitAll([&](const Object& object) {
        lines += roleOf(object) + " \"" + nameOf(object) + "\""
            + (areaOf(object) ? "\n" : " (not on the screen)\n");
        return false;
    });
    return lines;
}

bool AccessibleControls::visitAll(const Visitor& visit) const
{
    for (const auto& program : childrenOf({"org.a11y.atspi.Registry", root}))
        if (bus_->processOf(program.service) == process_ && this->visit(program, visit))
            return true;
    return false;
}

bool AccessibleControls::visit(const Object& object, const Visitor& visit) const
{
    if (visit(object))
        return true;
    for (const auto& child : childrenOf(object))
        if (this->visit(child, visit))
            return true;
    return false;
}

std::vector<AccessibleControls::Object> AccessibleControls::childrenOf(const Object& object) const
{
    auto reply = bus_->call(object.service, object.path, accessible, "GetChildren");
    std::vector<Object> children;
    for (reply.enter(); reply && !reply.isAtEnd(); reply.leave()) {
        reply.enter();
        auto service = reply.text();
        children.push_back({std::move(service), reply.path()});
    }
    return children;
}

std::string AccessibleControls::nameOf(const Object& object) const
{
    return bus_->property(object.service, object.path, accessible, "Name").text();
}

std::string AccessibleControls::roleOf(const Object& object) const
{
    return bus_->call(object.service, object.path, accessible, "GetRoleName").text();
}

/// Where it is on the screen; nothing while it cannot be seen there.
std::optional<ScreenArea> AccessibleControls::areaOf(const Object& object) const
{
    const auto states = bus_->call(object.service, object.path, accessible, "GetState").numbers();
    if (states.empty() || (states.front() & showing) == 0)
        return {};
    auto reply = bus_->call(
        object.service, object.path, "org.a11y.atspi.Component", "GetExtents", {onTheScreen});
    reply.enter();
    ScreenArea area{reply.number(), reply.number(), reply.number(), reply.number()};
    return area.width > 0 && area.height > 0 ? std::optional(area) : std::nullopt;
}

} // namespace brindlex
