#include "platform/linux/watchdog/InputRescue.h"

#include <chrono>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <thread>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

namespace brindlex {
namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename Message>
using XMessage = std::unique_ptr<Message, Free>;

/// How long the server may take to notice that a connection has ended.
constexpr std::chrono::milliseconds timeToGo{1000};
constexpr std::chrono::milliseconds lookAgain{2};

} // namespace

InputRescue::InputRescue(const std::string& display)
    : server_(xcb_connect(display.empty() ? nullptr : display.c_str(), nullptr))
{
    if (!isConnected())
        return;
    root_ = xcb_setup_roots_iterator(xcb_get_setup(server_)).data->root;
    // From this version on the server reports devices that another connection has taken.
    const XMessage<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        server_, xcb_input_xi_query_version(server_, 2, 2), nullptr));
    xcb_test_grab_control(server_, true);
    xcb_flush(server_);
}

InputRescue::~InputRescue() { xcb_disconnect(server_); }

void InputRescue::listen(bool isListening)
{
    if (isListening_ == isListening)
        return;
    isListening_ = isListening;
    struct {
        xcb_input_event_mask_t head{XCB_INPUT_DEVICE_ALL, 1};
        std::uint32_t mask = 0;
    } selection;
    if (isListening)
        selection.mask = XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS
            | XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_MOTION;
    xcb_input_xi_select_events(server_, root_, 1, &selection.head);
    xcb_flush(server_);
}

bool InputRescue::takeInput()
{
    bool hadInput = false;
    while (const XMessage<xcb_generic_event_t> event{xcb_poll_for_event(server_)})
        hadInput |= (event->response_type & 0x7F) == XCB_GE_GENERIC;
    return hadInput;
}

void InputRescue::cut(std::uint32_t window)
{
    xcb_kill_client(server_, window);
    tidyAfter(window);
}

void InputRescue::close(std::uint32_t window)
{
    xcb_unmap_window(server_, window);
    xcb_flush(server_);
}

void InputRescue::tidyAfter(std::uint32_t window)
{
    const auto deadline = std::chrono::steady_clock::now() + timeToGo;
    while (isConnected() && exists(window) && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(lookAgain);
    releasePlayed();
}

bool InputRescue::exists(std::uint32_t window) const
{
    const XMessage<xcb_get_geometry_reply_t> reply(
        xcb_get_geometry_reply(server_, xcb_get_geometry(server_, window), nullptr));
    return reply != nullptr;
}

void InputRescue::releasePlayed()
{
    const XMessage<xcb_input_xi_query_device_reply_t> reply(xcb_input_xi_query_device_reply(
        server_, xcb_input_xi_query_device(server_, XCB_INPUT_DEVICE_ALL), nullptr));
    if (!reply)
        return;
    auto devices = xcb_input_xi_query_device_infos_iterator(reply.get());
    for (; devices.rem > 0; xcb_input_xi_device_info_next(&devices)) {
        const std::string_view name(
            xcb_input_xi_device_info_name(devices.data), devices.data->name_len);
        if (name.find("XTEST") != std::string_view::npos)
            releasePlayedOn(devices.data->deviceid);
    }
    // The replies come when the server has done all of it.
    exists(root_);
}

void InputRescue::releasePlayedOn(std::uint16_t device)
{
    const XMessage<xcb_input_query_device_state_reply_t> reply(
        xcb_input_query_device_state_reply(server_,
            xcb_input_query_device_state(server_, static_cast<std::uint8_t>(device)), nullptr));
    if (!reply)
        return;
    auto states = xcb_input_query_device_state_classes_iterator(reply.get());
    for (; states.rem > 0; xcb_input_input_state_next(&states)) {
        const bool isKeys = states.data->class_id == XCB_INPUT_INPUT_CLASS_KEY;
        if (!isKeys && states.data->class_id != XCB_INPUT_INPUT_CLASS_BUTTON)
            continue;
        // Keys and buttons have the same form.
        const auto& held = *reinterpret_cast<const xcb_input_key_state_t*>(states.data);
        for (std::uint32_t code = 0; code < 256; ++code)
            if (held.keys[code / 8] >> (code % 8) & 1)
                xcb_test_fake_input(server_,
                    static_cast<std::uint8_t>(isKeys ? XCB_KEY_RELEASE : XCB_BUTTON_RELEASE),
                    static_cast<std::uint8_t>(code), XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
    }
}

} // namespace brindlex
