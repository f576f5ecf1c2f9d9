#include "platform/linux/input/X11InputDevices.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

namespace brindlex {
namespace {

constexpr std::uint16_t inputMajor = 2;
constexpr std::uint16_t inputMinor = 2;

using DeviceReply = X11Message<xcb_input_xi_query_device_reply_t>;

DeviceReply queryDevices(X11Connection& connection)
{
    return DeviceReply(xcb_input_xi_query_device_reply(connection.get(),
        xcb_input_xi_query_device(connection.get(), XCB_INPUT_DEVICE_ALL), nullptr));
}

template <typename Visitor>
void forEachDevice(const DeviceReply& reply, Visitor visit)
{
    if (!reply)
        return;
    auto infos = xcb_input_xi_query_device_infos_iterator(reply.get());
    for (; infos.rem > 0; xcb_input_xi_device_info_next(&infos))
        visit(*infos.data);
}

std::string_view nameOf(const xcb_input_xi_device_info_t& device)
{
    return {xcb_input_xi_device_info_name(&device), device.name_len};
}

/// The devices that XTEST plays on, one for each master.
bool isForTests(const xcb_input_xi_device_info_t& device)
{
    return nameOf(device).find("XTEST") != std::string_view::npos;
}

/// The device of the type that XTEST plays on for the master; 0 when there is none.
std::uint16_t playingDevice(X11Connection& connection, std::uint16_t type, std::uint16_t master)
{
    std::uint16_t playing = 0;
    forEachDevice(queryDevices(connection), [&](const xcb_input_xi_device_info_t& device) {
        if (isForTests(device) && device.type == type && device.attachment == master)
            playing = device.deviceid;
    });
    return playing;
}

bool isAbsolute(const xcb_input_xi_device_info_t& device)
{
    auto classes = xcb_input_xi_device_info_classes_iterator(&device);
    for (; classes.rem > 0; xcb_input_device_class_next(&classes)) {
        if (classes.data->type != XCB_INPUT_DEVICE_CLASS_TYPE_VALUATOR)
            continue;
        const auto& axis = *reinterpret_cast<const xcb_input_valuator_class_t*>(classes.data);
        if (axis.number == 0)
            return axis.mode == XCB_INPUT_VALUATOR_MODE_ABSOLUTE;
    }
    return false;
}

/// What the drivers say that the devices are, by number.
std::map<std::uint16_t, xcb_atom_t> driverTypes(X11Connection& connection)
{
    std::map<std::uint16_t, xcb_atom_t> types;
    const X11Message<xcb_input_list_input_devices_reply_t> reply(xcb_input_list_input_devices_reply(
        connection.get(), xcb_input_list_input_devices(connection.get()), nullptr));
    if (!reply)
        return types;
    const auto* devices = xcb_input_list_input_devices_devices(reply.get());
    for (int index = 0; index < xcb_input_list_input_devices_devices_length(reply.get()); ++index)
        types.emplace(devices[index].device_id, devices[index].device_type);
    return types;
}

Failure<X11TappingProblem> failLacking(std::string name, std::string words)
{
    return fail(X11TappingProblem{
        std::move(words), {PermissionObstacle::Reason::lacking, std::move(name)}});
}

Failure<X11TappingProblem> failLacking(const std::string& name)
{
    return failLacking(name, "the X server has no " + name);
}

} // namespace

Result<X11MasterDevices, X11TappingProblem> tappableMasters(X11Connection& connection)
{
    if (!connection.isAlive())
        return failLacking("X", "there is no X server");
    auto* const server = connection.get();
    const auto* input = xcb_get_extension_data(server, &xcb_input_id);
    const auto* test = xcb_get_extension_data(server, &xcb_test_id);
    if (!test || !test->present)
        return failLacking("XTEST");
    if (!input || !input->present)
        return failLacking("XInput");
    const X11Message<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        server, xcb_input_xi_query_version(server, inputMajor, inputMinor), nullptr));
    if (!version || version->major_version != inputMajor || version->minor_version < inputMinor)
        return failLacking("XInput 2.2", "the XInput of the X server is older than 2.2");
    const X11Message<xcb_input_xi_get_client_pointer_reply_t> pointer(
        xcb_input_xi_get_client_pointer_reply(
            server, xcb_input_xi_get_client_pointer(server, XCB_WINDOW_NONE), nullptr));
    if (!pointer)
        return failLacking("pointer");

    // A client that has not moved the cursor yet has no pointer of its own: it gets the first.
    X11MasterDevices masters{pointer->set ? pointer->deviceid : std::uint16_t{0}, 0};
    bool isGuest = false;
    forEachDevice(queryDevices(connection), [&](const xcb_input_xi_device_info_t& device) {
        isGuest |= nameOf(device).starts_with("xwayland-");
        if (masters.pointer == 0 && device.type == XCB_INPUT_DEVICE_TYPE_MASTER_POINTER)
            masters.pointer = device.deviceid;
        if (device.deviceid == masters.pointer)
            masters.keyboard = device.attachment;
    });
    if (isGuest)
        return fail(X11TappingProblem{"the X server is a guest of a Wayland session",
            {PermissionObstacle::Reason::closedSession, {}}});
    if (masters.keyboard == 0)
        return failLacking("keyboard");
    return masters;
}

std::vector<X11InputDevice> tappableDevices(X11Connection& connection, X11MasterDevices masters)
{
    const std::array continuous{connection.atom("TOUCHPAD"), connection.atom("TOUCHSCREEN"),
        connection.atom("TABLET"), connection.atom("STYLUS"), connection.atom("ERASER"),
        connection.atom("PAD")};
    const auto types = driverTypes(connection);
    std::vector<X11InputDevice> devices;
    forEachDevice(queryDevices(connection), [&](const xcb_input_xi_device_info_t& device) {
        const bool isMouse = device.type == XCB_INPUT_DEVICE_TYPE_SLAVE_POINTER
            && device.attachment == masters.pointer;
        const bool isKeyboard = device.type == XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD
            && device.attachment == masters.keyboard;
        if ((!isMouse && !isKeyboard) || !device.enabled || isForTests(device))
            return;
        const auto type = types.find(device.deviceid);
        if (type != types.end() && std::ranges::find(continuous, type->second) != continuous.end())
            return;
        devices.push_back({device.deviceid,
            isMouse ? X11InputDevice::Kind::mouse : X11InputDevice::Kind::keyboard,
            std::string(nameOf(device)), isMouse && isAbsolute(device)});
    });
    return devices;
}

std::uint16_t playingKeyboard(X11Connection& connection, X11MasterDevices masters)
{
    return playingDevice(connection, XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD, masters.keyboard);
}

std::uint16_t playingPointer(X11Connection& connection, X11MasterDevices masters)
{
    return playingDevice(connection, XCB_INPUT_DEVICE_TYPE_SLAVE_POINTER, masters.pointer);
}

std::vector<std::uint8_t> keysHeldByHand(
    X11Connection& connection, const std::vector<X11InputDevice>& devices)
{
    std::array<bool, 256> isHeld{};
    for (const auto& device : devices) {
        if (device.kind != X11InputDevice::Kind::keyboard)
            continue;
        const X11Message<xcb_input_query_device_state_reply_t> reply(
            xcb_input_query_device_state_reply(connection.get(),
                xcb_input_query_device_state(
                    connection.get(), static_cast<std::uint8_t>(device.id)),
                nullptr));
        if (!reply)
            continue;
        auto states = xcb_input_query_device_state_classes_iterator(reply.get());
        for (; states.rem > 0; xcb_input_input_state_next(&states)) {
            if (states.data->class_id != XCB_INPUT_INPUT_CLASS_KEY)
                continue;
            const auto& keys = *reinterpret_cast<const xcb_input_key_state_t*>(states.data);
            for (std::size_t key = 0; key < isHeld.size(); ++key)
                isHeld[key] = isHeld[key] || (keys.keys[key / 8] >> (key % 8) & 1);
        }
    }
    std::vector<std::uint8_t> held;
    for (std::size_t key = 0; key < isHeld.size(); ++key)
        if (isHeld[key])
            held.push_back(static_cast<std::uint8_t>(key));
    return held;
}

} // namespace brindlex
