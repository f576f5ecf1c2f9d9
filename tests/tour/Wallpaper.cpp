#include "tour/Wallpaper.h"

#include <array>
#include <vector>

namespace brindlex {
namespace {

constexpr std::array<double, 3> upper{0x3b, 0x5b, 0x7a};
constexpr std::array<double, 3> lower{0xa9, 0xc0, 0xc4};

std::uint32_t shade(double share)
{
    std::uint32_t pixel = 0;
    for (std::size_t part = 0; part < upper.size(); ++part)
        pixel = pixel << 8
            | static_cast<std::uint32_t>(upper[part] + (lower[part] - upper[part]) * share);
    return pixel;
}

} // namespace

void paintWallpaper(const XConnection& server)
{
    const auto connection = server.get();
    const auto& screen = server.screen();
    const auto width = screen.width_in_pixels;
    const auto height = screen.height_in_pixels;
    const auto pixmap = xcb_generate_id(connection);
    const auto context = xcb_generate_id(connection);
    xcb_create_pixmap(connection, screen.root_depth, pixmap, server.root(), width, height);
    xcb_create_gc(connection, context, pixmap, 0, nullptr);
    for (std::uint16_t row = 0; row < height; ++row) {
        const auto colour = shade(static_cast<double>(row) / height);
        const xcb_rectangle_t line{0, static_cast<std::int16_t>(row), width, 1};
        xcb_change_gc(connection, context, XCB_GC_FOREGROUND, &colour);
        xcb_poly_fill_rectangle(connection, pixmap, context, 1, &line);
    }
    xcb_change_window_attributes(connection, server.root(), XCB_CW_BACK_PIXMAP, &pixmap);
    xcb_clear_area(connection, false, server.root(), 0, 0, width, height);
    xcb_free_gc(connection, context);
    xcb_free_pixmap(connection, pixmap);
    server.sync();
}

} // namespace brindlex
