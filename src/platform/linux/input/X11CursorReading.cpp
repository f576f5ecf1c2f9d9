#include "platform/linux/input/X11CursorReading.h"

#include <array>
#include <span>
#include <xcb/xfixes.h>

namespace brindlex {
namespace {

struct ThemeNames {
    std::string_view name;
    std::array<std::string_view, 8> inThemes;
};

/// The names of the freedesktop cursor specification, of X's cursor font and of the themes of KDE.
constexpr std::array themeNames{
    ThemeNames{"resizeLeftRight",
        {"ew-resize", "sb_h_double_arrow", "h_double_arrow", "size_hor", "size-hor"}},
    ThemeNames{"resizeUpDown",
        {"ns-resize", "sb_v_double_arrow", "v_double_arrow", "size_ver", "size-ver",
            "double_arrow"}},
    ThemeNames{"resizeLeft", {"w-resize", "left_side", "sb_left_arrow"}},
    ThemeNames{"resizeRight", {"e-resize", "right_side", "sb_right_arrow"}},
    ThemeNames{"resizeUp", {"n-resize", "top_side", "sb_up_arrow"}},
    ThemeNames{"resizeDown", {"s-resize", "bottom_side", "sb_down_arrow"}},
    ThemeNames{"columnResize", {"col-resize", "split_h"}},
    ThemeNames{"rowResize", {"row-resize", "split_v"}},
    // The corners of a window, which a Mac shows as a resizing of both.
    ThemeNames{"columnResizeLeftRight",
        {"nwse-resize", "nw-resize", "se-resize", "top_left_corner", "bottom_right_corner",
            "bd_double_arrow", "size_fdiag", "fd_double_arrow"}},
    ThemeNames{"rowResizeUpDown",
        {"nesw-resize", "ne-resize", "sw-resize", "top_right_corner", "bottom_left_corner",
            "size_bdiag", "size-bdiag", "size-fdiag"}},
};

/// A number that is equal for equal names (FNV-1a), and 0 for none.
std::uint64_t identityOf(std::string_view name)
{
    if (name.empty())
        return 0;
    std::uint64_t hash = 14695981039346656037U;
    for (const char character : name)
        hash = (hash ^ static_cast<unsigned char>(character)) * 1099511628211U;
    return hash | 1;
}

} // namespace

X11CursorReading::X11CursorReading(X11Connection& connection) : connection_(connection)
{
    // A request of an extension that the server does not have would end the connection.
    const auto* extension = xcb_get_extension_data(connection_.get(), &xcb_xfixes_id);
    if (!connection_.isAlive() || !extension || !extension->present)
        return;
    // The name came with the second version.
    const X11Message<xcb_xfixes_query_version_reply_t> version(xcb_xfixes_query_version_reply(
        connection_.get(), xcb_xfixes_query_version(connection_.get(), 4, 0), nullptr));
    isAvailable_ = version && version->major_version >= 2;
}

std::optional<CursorImage> X11CursorReading::currentSystem()
{
    if (!isAvailable_)
        return {};
    const X11Message<xcb_xfixes_get_cursor_image_and_name_reply_t> reply(
        xcb_xfixes_get_cursor_image_and_name_reply(
            connection_.get(), xcb_xfixes_get_cursor_image_and_name(connection_.get()), nullptr));
    if (!reply)
        return {};
    const std::string_view name(xcb_xfixes_get_cursor_image_and_name_name(reply.get()),
        static_cast<std::size_t>(xcb_xfixes_get_cursor_image_and_name_name_length(reply.get())));
    const std::span pixels(xcb_xfixes_get_cursor_image_and_name_cursor_image(reply.get()),
        static_cast<std::size_t>(
            xcb_xfixes_get_cursor_image_and_name_cursor_image_length(reply.get())));
    const auto bytes = std::as_bytes(pixels);
    return CursorImage{identityOf(name),
        {static_cast<double>(reply->xhot), static_cast<double>(reply->yhot)},
        {static_cast<double>(reply->width), static_cast<double>(reply->height)},
        {reinterpret_cast<const char*>(bytes.data()), bytes.size()}};
}

std::vector<CursorImage> X11CursorReading::looks(std::string_view name)
{
    std::vector<CursorImage> looks;
    for (const auto& entry : themeNames)
        if (entry.name == name)
            for (const auto inTheme : entry.inThemes)
                if (!inTheme.empty())
                    looks.push_back({identityOf(inTheme), {}, {}, {}});
    return looks;
}

} // namespace brindlex
