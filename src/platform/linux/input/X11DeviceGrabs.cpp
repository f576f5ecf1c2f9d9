#include "platform/linux/input/X11DeviceGrabs.h"

#include "log/Log.h"
#include "platform/linux/input/X11Modifiers.h"

#include <algorithm>
#include <array>
#include <utility>
#include <xcb/xinput.h>

namespace brindlex {
namespace {

/// What comes of a device while it is taken. Its fine motion comes raw: the place of a floating
/// device is not that of the cursor.
std::uint32_t eventsOf(const X11InputDevice& device)
{
    if (device.kind == X11InputDevice::Kind::keyboard)
        return XCB_INPUT_XI_EVENT_MASK_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_KEY_RELEASE;
    return XCB_INPUT_XI_EVENT_MASK_BUTTON_PRESS | XCB_INPUT_XI_EVENT_MASK_BUTTON_RELEASE
        | (device.isAbsolute ? XCB_INPUT_XI_EVENT_MASK_MOTION : XCB_INPUT_XI_EVENT_MASK_RAW_MOTION);
}

std::uint8_t grabTypeOf(const X11InputDevice& device)
{
    return device.kind == X11InputDevice::Kind::keyboard ? XCB_INPUT_GRAB_TYPE_KEYCODE
                                                         : XCB_INPUT_GRAB_TYPE_BUTTON;
}

/// The modifiers that no trigger knows of: Caps Lock, Num Lock and what layouts lock besides.
constexpr std::array<std::uint32_t, 4> locks{
    XCB_MOD_MASK_LOCK, XCB_MOD_MASK_2, XCB_MOD_MASK_3, XCB_MOD_MASK_5};

/// The modifiers of the trigger, alone and with each set of locks.
std::vector<std::uint32_t> modifierSets(const TapDemand::Trigger& trigger)
{
    if (!trigger.second)
        return {XCB_INPUT_MODIFIER_MASK_ANY};
    std::vector<std::uint32_t> sets{modifiersOfFlags(*trigger.second)};
    for (const auto lock : locks)
        for (std::size_t index = 0, count = sets.size(); index < count; ++index)
            sets.push_back(sets[index] | lock);
    return sets;
}

/// The request for one trigger of a device, sent together with those for others.
class TriggerRequest {
public:
    TriggerRequest(
        X11Connection& connection, const X11InputDevice& device, const TapDemand::Trigger& trigger)
        : server_(connection.get()), trigger_(trigger)
    {
        const auto events = eventsOf(device);
        const auto modifiers = modifierSets(trigger);
        request_ = xcb_input_xi_passive_grab_device(server_, XCB_CURRENT_TIME, connection.root(),
            XCB_CURSOR_NONE, trigger.first, device.id, static_cast<std::uint16_t>(modifiers.size()),
            1, grabTypeOf(device), XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_MODE_22_ASYNC,
            XCB_INPUT_GRAB_OWNER_NO_OWNER, &events, modifiers.data());
    }

    const TapDemand::Trigger& trigger() const { return trigger_; }

    /// Whether nobody else holds it, with whatever modifiers. May be called once.
    bool isGranted() const
    {
        const X11Message<xcb_input_xi_passive_grab_device_reply_t> reply(
            xcb_input_xi_passive_grab_device_reply(server_, request_, nullptr));
        // What is refused is listed.
        return reply && reply->num_modifiers == 0;
    }

private:
    xcb_connection_t* server_;
    TapDemand::Trigger trigger_;
    xcb_input_xi_passive_grab_device_cookie_t request_{};
};

void reportRefused(const X11InputDevice& device, const TapDemand::Trigger& trigger)
{
    const auto what = device.kind == X11InputDevice::Kind::keyboard ? " key " : " button ";
    Log::warn("Another program holds" + std::string(what) + std::to_string(trigger.first) + " of \""
            + device.name + "\"; it is tapped once it is given back",
        logCategory::mouse);
}

} // namespace

bool X11DeviceGrabs::apply(
    const TapDemand& demand, std::span<const X11InputDevice> devices, bool mayLetGo)
{
    bool isDone = true;
    for (const auto& device : devices) {
        const bool isKeyboard = device.kind == X11InputDevice::Kind::keyboard;
        const bool wantsAll = isKeyboard ? demand.takesKeyboards : demand.takesMice;
        auto& grab = grabs_[device.id];
        if (wantsAll && !grab.isTaken)
            grab.isTaken = take(device);
        report(device, grab, wantsAll);
        // New triggers are there before the device is given back, so that none slips through.
        setTriggers(device, grab, isKeyboard ? demand.keys : demand.buttons);
        if (!wantsAll && grab.isTaken && mayLetGo) {
            giveBack(device);
            grab.isTaken = false;
        }
        isDone &= grab.isTaken == wantsAll && grab.refused.empty();
    }
    xcb_flush(connection_.get());
    return isDone;
}

bool X11DeviceGrabs::isTaken(std::uint16_t device) const
{
    const auto grab = grabs_.find(device);
    return grab != grabs_.end() && grab->second.isTaken;
}

bool X11DeviceGrabs::mayHold(std::uint16_t device) const
{
    const auto grab = grabs_.find(device);
    return grab != grabs_.end() && !grab->second.isNothing();
}

bool X11DeviceGrabs::isNothing() const
{
    return std::ranges::all_of(grabs_, [](const auto& grab) { return grab.second.isNothing(); });
}

bool X11DeviceGrabs::take(const X11InputDevice& device)
{
    const auto events = eventsOf(device);
    auto* const server = connection_.get();
    const auto request = xcb_input_xi_grab_device(server, connection_.root(), XCB_CURRENT_TIME,
        XCB_CURSOR_NONE, device.id, XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_MODE_22_ASYNC,
        XCB_INPUT_GRAB_OWNER_NO_OWNER, 1, &events);
    const X11Message<xcb_input_xi_grab_device_reply_t> reply(
        xcb_input_xi_grab_device_reply(server, request, nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

void X11DeviceGrabs::report(const X11InputDevice& device, Grab& grab, bool wantsAll)
{
    const bool isRefused = wantsAll && !grab.isTaken;
    if (std::exchange(grab.isReported, isRefused) != isRefused && isRefused)
        Log::warn(
            "Another program has taken \"" + device.name + "\"; it is tapped once it is given back",
            logCategory::mouse);
}

void X11DeviceGrabs::giveBack(const X11InputDevice& device)
{
    xcb_input_xi_ungrab_device(connection_.get(), XCB_CURRENT_TIME, device.id);
}

void X11DeviceGrabs::forget(std::uint16_t device)
{
    const auto found = grabs_.find(device);
    if (found == grabs_.end())
        return;
    // A device that is only switched off would keep its triggers; the server knows no other.
    for (const auto type : {XCB_INPUT_GRAB_TYPE_BUTTON, XCB_INPUT_GRAB_TYPE_KEYCODE})
        giveBackTriggers(device, static_cast<std::uint8_t>(type), found->second, {});
    grabs_.erase(found);
}

void X11DeviceGrabs::setTriggers(
    const X11InputDevice& device, Grab& grab, const std::set<TapDemand::Trigger>& triggers)
{
    // Old ones go first: the new may be the same with other modifiers.
    giveBackTriggers(device.id, grabTypeOf(device), grab, triggers);
    std::vector<TriggerRequest> requests;
    for (const auto& trigger : triggers)
        if (!grab.triggers.contains(trigger) || grab.refused.contains(trigger))
            requests.emplace_back(connection_, device, trigger);
    for (const auto& request : requests) {
        if (request.isGranted())
            grab.refused.erase(request.trigger());
        else if (grab.refused.insert(request.trigger()).second)
            reportRefused(device, request.trigger());
    }
    grab.triggers = triggers;
}

void X11DeviceGrabs::giveBackTriggers(std::uint16_t device, std::uint8_t grabType, Grab& grab,
    const std::set<TapDemand::Trigger>& kept)
{
    for (const auto& trigger : grab.triggers) {
        if (kept.contains(trigger))
            continue;
        const auto modifiers = modifierSets(trigger);
        xcb_input_xi_passive_ungrab_device(connection_.get(), connection_.root(), trigger.first,
            device, static_cast<std::uint16_t>(modifiers.size()), grabType, modifiers.data());
        grab.refused.erase(trigger);
    }
}

} // namespace brindlex
