#include "support/windows/EventLogWindow.h"

#include "foundation/FatalError.h"
#include "support/basics/Eventually.h"

#include <xcb/xinput.h>

namespace brindlex {

EventLogWindow::EventLogWindow(Protocol protocol) : window_(xcb_generate_id(server_.get()))
{
    const auto& screen = server_.screen();
    const std::uint32_t overrideRedirect = 1;
    xcb_create_window(server_.get(), XCB_COPY_FROM_PARENT, window_, screen.root, 0, 0,
        screen.width_in_pixels, screen.height_in_pixels, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
        XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &overrideRedirect);
    listen(protocol);
    xcb_map_window(server_.get(), window_);
    movePointer({screen.width_in_pixels / 2, screen.height_in_pixels / 2});
    const auto hasFocus = [this] {
        xcb_set_input_focus(server_.get(), XCB_INPUT_FOCUS_PARENT, window_, XCB_CURRENT_TIME);
        const XReply<xcb_get_input_focus_reply_t> reply(
            xcb_get_input_focus_reply(server_.get(), xcb_get_input_focus(server_.get()), nullptr));
        return reply && reply->focus == window_;
    };
    if (!eventually(hasFocus))
        fatalError("The window does not get the keys");
    forget();
}

EventLogWindow::EventLogWindow(const std::string& title, const ScreenArea& area)
    : window_(xcb_generate_id(server_.get()))
{
    const auto& screen = server_.screen();
    xcb_create_window(server_.get(), XCB_COPY_FROM_PARENT, window_, screen.root, 0, 0,
        static_cast<std::uint16_t>(area.width), static_cast<std::uint16_t>(area.height), 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL,
        &screen.white_pixel);
    listen(Protocol::core);
    xcb_change_property(server_.get(), XCB_PROP_MODE_REPLACE, window_, server_.atom("_NET_WM_NAME"),
        server_.atom("UTF8_STRING"), 8, static_cast<std::uint32_t>(title.size()), title.data());
    xcb_map_window(server_.get(), window_);
    const DesktopWindows windows(server_);
    const auto stands = [&] {
        if (windows.active() != window_)
            return false;
        windows.place(window_, area);
        const auto now = windows.areaOf(window_);
        return now.width == area.width && now.height == area.height;
    };
    if (!eventually(stands))
        fatalError("The window manager does not show the window " + title);
    forget();
}

EventLogWindow::~EventLogWindow()
{
    xcb_destroy_window(server_.get(), window_);
    server_.sync();
}

void EventLogWindow::listen(Protocol protocol)
{
    std::uint32_t mask
        = XCB_EVENT_MASK_FOCUS_CHANGE | XCB_EVENT_MASK_LEAVE_WINDOW | XCB_EVENT_MASK_ENTER_WINDOW;
    if (protocol == Protocol::core)
        mask |= XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE | XCB_EVENT_MASK_BUTTON_PRESS
            | XCB_EVENT_MASK_BUTTON_RELEASE | XCB_EVENT_MASK_POINTER_MOTION;
    xcb_change_window_attributes(server_.get(), window_, XCB_CW_EVENT_MASK, &mask);
    if (protocol == Protocol::core)
        return;
    const XReply<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        server_.get(), xcb_input_xi_query_version(server_.get(), 2, 2), nullptr));
    struct {
        xcb_input_event_mask_t head{XCB_INPUT_DEVICE_ALL_MASTER, 1};
        std::uint32_t mask = XCB_INPUT_XI_EVENT_MASK_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_KEY_RELEASE
            | XCB_INPUT_XI_EVENT_MASK_BUTTON_PRESS | XCB_INPUT_XI_EVENT_MASK_BUTTON_RELEASE
            | XCB_INPUT_XI_EVENT_MASK_MOTION;
    } const selection;
    xcb_input_xi_select_events(server_.get(), window_, 1, &selection.head);
}

const std::vector<std::string>& EventLogWindow::lines()
{
    drain();
    return log_.lines();
}

int EventLogWindow::keymaps()
{
    drain();
    return log_.keymaps();
}

int EventLogWindow::motions()
{
    drain();
    return log_.motions();
}

int EventLogWindow::drags()
{
    drain();
    return log_.drags();
}

void EventLogWindow::forget()
{
    server_.sync();
    drain();
    log_ = {};
}

EventLogWindow::Position EventLogWindow::pointer() const
{
    const XReply<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
        server_.get(), xcb_query_pointer(server_.get(), server_.root()), nullptr));
    return reply ? Position{reply->root_x, reply->root_y} : Position{};
}

void EventLogWindow::movePointer(Position position) const
{
    xcb_warp_pointer(server_.get(), XCB_NONE, server_.root(), 0, 0, 0, 0,
        static_cast<std::int16_t>(position.x), static_cast<std::int16_t>(position.y));
    server_.sync();
}

std::vector<std::string> EventLogWindow::held() const
{
    std::vector<std::string> held;
    const XReply<xcb_query_pointer_reply_t> pointer(xcb_query_pointer_reply(
        server_.get(), xcb_query_pointer(server_.get(), server_.root()), nullptr));
    for (std::uint32_t button = 1; pointer && button <= 5; ++button)
        if (pointer->mask & (0x80U << button))
            held.push_back("button " + std::to_string(button));
    const XReply<xcb_query_keymap_reply_t> keys(
        xcb_query_keymap_reply(server_.get(), xcb_query_keymap(server_.get()), nullptr));
    for (std::uint32_t key = 0; keys && key < 256; ++key)
        if (keys->keys[key / 8] >> (key % 8) & 1)
            held.push_back("key " + std::to_string(key));
    return held;
}

void EventLogWindow::drain()
{
    while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(server_.get())})
        log_.note(*event);
}

} // namespace brindlex
