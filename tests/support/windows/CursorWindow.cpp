#include "support/windows/CursorWindow.h"

#include <string_view>
#include <xcb/xfixes.h>

namespace brindlex {

CursorWindow::CursorWindow(const XConnection& server)
    : server_(server), window_(xcb_generate_id(server.get())), font_(xcb_generate_id(server.get()))
{
    // Names of cursors are there for those who have said which version they speak.
    const XReply<xcb_xfixes_query_version_reply_t> version(xcb_xfixes_query_version_reply(
        server.get(), xcb_xfixes_query_version(server.get(), 4, 0), nullptr));
    constexpr std::string_view cursorFont = "cursor";
    xcb_open_font(server.get(), font_, cursorFont.size(), cursorFont.data());
    const auto& screen = server.screen();
    const std::uint32_t overrideRedirect = 1;
    xcb_create_window(server.get(), XCB_COPY_FROM_PARENT, window_, server.root(), 0, 0,
        screen.width_in_pixels, screen.height_in_pixels, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
        XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &overrideRedirect);
    xcb_map_window(server.get(), window_);
    server.sync();
}

CursorWindow::~CursorWindow()
{
    xcb_destroy_window(server_.get(), window_);
    xcb_close_font(server_.get(), font_);
    server_.sync();
}

void CursorWindow::show(std::uint16_t glyph, const std::string& name) const
{
    constexpr std::uint16_t white = 0xFFFF;
    const auto cursor = xcb_generate_id(server_.get());
    xcb_create_glyph_cursor(server_.get(), cursor, font_, font_, glyph,
        static_cast<std::uint16_t>(glyph + 1), 0, 0, 0, white, white, white);
    if (!name.empty())
        xcb_xfixes_set_cursor_name(
            server_.get(), cursor, static_cast<std::uint16_t>(name.size()), name.data());
    xcb_change_window_attributes(server_.get(), window_, XCB_CW_CURSOR, &cursor);
    xcb_free_cursor(server_.get(), cursor);
    server_.sync();
}

} // namespace brindlex
