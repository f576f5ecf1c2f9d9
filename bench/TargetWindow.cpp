#include "TargetWindow.h"

#include "support/basics/Eventually.h"

#include <algorithm>
#include <poll.h>
#include <string_view>

namespace brindlex {
namespace {

using namespace std::chrono_literals;
using namespace std::string_view_literals;

constexpr auto timeToArrive = 500ms;

void waitToRead(int descriptor, std::chrono::nanoseconds patience)
{
    patience = std::max(patience, 0ns);
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(patience);
    const timespec limit{seconds.count(), (patience - seconds).count()};
    pollfd waiting{descriptor, POLLIN, 0};
    ppoll(&waiting, 1, &limit, nullptr);
}

} // namespace

TargetWindow::TargetWindow() : window_(xcb_generate_id(server_.get()))
{
    const auto& screen = server_.screen();
    const std::uint32_t values[]{1,
        XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE | XCB_EVENT_MASK_BUTTON_PRESS
            | XCB_EVENT_MASK_BUTTON_RELEASE | XCB_EVENT_MASK_POINTER_MOTION};
    xcb_create_window(server_.get(), XCB_COPY_FROM_PARENT, window_, server_.root(), 0, 0,
        screen.width_in_pixels, screen.height_in_pixels, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
        XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    constexpr auto name = "target\0Target\0"sv;
    xcb_change_property(server_.get(), XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_CLASS,
        XCB_ATOM_STRING, 8, name.size(), name.data());
    xcb_map_window(server_.get(), window_);
    xcb_warp_pointer(server_.get(), XCB_NONE, server_.root(), 0, 0, 0, 0,
        static_cast<std::int16_t>(screen.width_in_pixels / 2),
        static_cast<std::int16_t>(screen.height_in_pixels / 2));
    eventually([this] {
        xcb_set_input_focus(server_.get(), XCB_INPUT_FOCUS_PARENT, window_, XCB_CURRENT_TIME);
        const XReply<xcb_get_input_focus_reply_t> reply(
            xcb_get_input_focus_reply(server_.get(), xcb_get_input_focus(server_.get()), nullptr));
        return reply && reply->focus == window_;
    });
}

void TargetWindow::forget() const
{
    server_.sync();
    while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(server_.get())})
        continue;
}

std::optional<TargetWindow::Clock::time_point> TargetWindow::next(
    std::uint8_t type, Clock::time_point deadline) const
{
    do {
        while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(server_.get())})
            if ((event->response_type & 0x7F) == type)
                return Clock::now();
        waitToRead(xcb_get_file_descriptor(server_.get()), deadline - Clock::now());
    } while (Clock::now() < deadline);
    return {};
}

std::optional<TargetWindow::Clock::time_point> TargetWindow::next(std::uint8_t type) const
{
    return next(type, Clock::now() + timeToArrive);
}

} // namespace brindlex
