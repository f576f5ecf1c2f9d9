#include "support/hardware/InputDevices.h"

#include "foundation/FatalError.h"

#include <array>
#include <functional>
#include <xcb/xinput.h>

namespace brindlex {
namespace {

void forEachDevice(
    const XConnection& server, const std::function<void(const xcb_input_xi_device_info_t&)>& visit)
{
    const XReply<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        server.get(), xcb_input_xi_query_version(server.get(), 2, 2), nullptr));
    const XReply<xcb_input_xi_query_device_reply_t> reply(xcb_input_xi_query_device_reply(
        server.get(), xcb_input_xi_query_device(server.get(), XCB_INPUT_DEVICE_ALL), nullptr));
    auto infos = xcb_input_xi_query_device_infos_iterator(reply.get());
    for (; infos.rem > 0; xcb_input_xi_device_info_next(&infos))
        visit(*infos.data);
}

std::string nameOf(const xcb_input_xi_device_info_t& device)
{
    return {xcb_input_xi_device_info_name(&device), device.name_len};
}

std::uint16_t deviceWithName(const XConnection& server, const std::string& name)
{
    std::uint16_t found = 0;
    forEachDevice(server, [&](const xcb_input_xi_device_info_t& device) {
        if (nameOf(device) == name)
            found = device.deviceid;
    });
    if (found == 0)
        fatalError("There is no device " + name);
    return found;
}

} // namespace

std::vector<std::string> floatingDevices(const XConnection& server)
{
    std::vector<std::string> names;
    forEachDevice(server, [&](const xcb_input_xi_device_info_t& device) {
        if (device.type == XCB_INPUT_DEVICE_TYPE_FLOATING_SLAVE && device.enabled)
            names.push_back(nameOf(device));
    });
    return names;
}

void setDevicePresent(const XConnection& server, const std::string& name, bool isPresent)
{
    // The library sends the padding behind a value along, up to the next four bytes.
    const std::array<std::uint8_t, 4> value{static_cast<std::uint8_t>(isPresent)};
    xcb_input_xi_change_property(server.get(), deviceWithName(server, name), XCB_PROP_MODE_REPLACE,
        8, server.atom("Device Enabled"), XCB_ATOM_INTEGER, 1, value.data());
    server.sync();
}

bool takeDevice(const XConnection& server, const std::string& name)
{
    const std::uint32_t events = XCB_INPUT_XI_EVENT_MASK_BUTTON_PRESS;
    const XReply<xcb_input_xi_grab_device_reply_t> reply(
        xcb_input_xi_grab_device_reply(server.get(),
            xcb_input_xi_grab_device(server.get(), server.root(), XCB_CURRENT_TIME, XCB_CURSOR_NONE,
                deviceWithName(server, name), XCB_INPUT_GRAB_MODE_22_ASYNC,
                XCB_INPUT_GRAB_MODE_22_ASYNC, false, 1, &events),
            nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

bool takeButton(const XConnection& server, const std::string& name, std::uint32_t button)
{
    const std::uint32_t events = XCB_INPUT_XI_EVENT_MASK_BUTTON_PRESS;
    const std::uint32_t modifiers = XCB_INPUT_MODIFIER_MASK_ANY;
    const XReply<xcb_input_xi_passive_grab_device_reply_t> reply(
        xcb_input_xi_passive_grab_device_reply(server.get(),
            xcb_input_xi_passive_grab_device(server.get(), XCB_CURRENT_TIME, server.root(),
                XCB_CURSOR_NONE, button, deviceWithName(server, name), 1, 1,
                XCB_INPUT_GRAB_TYPE_BUTTON, XCB_INPUT_GRAB_MODE_22_ASYNC,
                XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_OWNER_NO_OWNER, &events, &modifiers),
            nullptr));
    return reply && reply->num_modifiers == 0;
}

} // namespace brindlex
