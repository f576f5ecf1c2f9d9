#include "support/locks/InputGrab.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

constexpr auto async = XCB_GRAB_MODE_ASYNC;

std::uint8_t grabPointer(const XConnection& server, xcb_window_t window)
{
    const XReply<xcb_grab_pointer_reply_t> reply(xcb_grab_pointer_reply(server.get(),
        xcb_grab_pointer(server.get(), false, window, XCB_EVENT_MASK_BUTTON_PRESS, async, async,
            XCB_NONE, XCB_NONE, XCB_CURRENT_TIME),
        nullptr));
    return reply ? reply->status : std::uint8_t{XCB_GRAB_STATUS_FROZEN};
}

std::uint8_t grabKeyboard(const XConnection& server, xcb_window_t window)
{
    const XReply<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(server.get(),
        xcb_grab_keyboard(server.get(), false, window, XCB_CURRENT_TIME, async, async), nullptr));
    return reply ? reply->status : std::uint8_t{XCB_GRAB_STATUS_FROZEN};
}

} // namespace

InputGrab::InputGrab(const What& what) : window_(xcb_generate_id(server_.get()))
{
    const std::uint32_t values[] = {server_.screen().black_pixel, 1};
    const auto number = [](int value) { return static_cast<std::uint16_t>(value); };
    xcb_create_window(server_.get(), XCB_COPY_FROM_PARENT, window_, server_.root(),
        static_cast<std::int16_t>(what.area.x), static_cast<std::int16_t>(what.area.y),
        number(what.area.width), number(what.area.height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
        XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values);
    if (!what.type.empty()) {
        const auto type = server_.atom(what.type);
        xcb_change_property(server_.get(), XCB_PROP_MODE_REPLACE, window_,
            server_.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32, 1, &type);
    }
    xcb_map_window(server_.get(), window_);
    const auto isTaken
        = [](bool isWanted, auto grab) { return !isWanted || grab() == XCB_GRAB_STATUS_SUCCESS; };
    EXPECT_TRUE(isTaken(what.pointer, [this] { return grabPointer(server_, window_); }));
    EXPECT_TRUE(isTaken(what.keyboard, [this] { return grabKeyboard(server_, window_); }));
}

InputGrab::~InputGrab()
{
    xcb_destroy_window(server_.get(), window_);
    server_.sync();
}

bool isAllInputTaken(const XConnection& server)
{
    const auto unseen = xcb_generate_id(server.get());
    xcb_create_window(server.get(), XCB_COPY_FROM_PARENT, unseen, server.root(), 0, 0, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    const bool isTaken = grabPointer(server, unseen) == XCB_GRAB_STATUS_ALREADY_GRABBED
        && grabKeyboard(server, unseen) == XCB_GRAB_STATUS_ALREADY_GRABBED;
    xcb_destroy_window(server.get(), unseen);
    return isTaken;
}

} // namespace brindlex
