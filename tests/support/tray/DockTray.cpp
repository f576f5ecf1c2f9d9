#include "support/tray/DockTray.h"

#include <array>

namespace brindlex {
namespace {

constexpr std::uint16_t trayMargin = 4;

} // namespace

DockTray::DockTray(const Options& options)
    : options_(options), window_(xcb_generate_id(server_.get()))
{
    constexpr std::uint32_t mask = XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK;
    const std::array<std::uint32_t, 3> values{
        options.ground, 1, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_STRUCTURE_NOTIFY};
    const auto height = static_cast<std::uint16_t>(options.iconSize + 2 * trayMargin);
    xcb_create_window(server_.get(), XCB_COPY_FROM_PARENT, window_, server_.root(), 0, 0, 300,
        height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, mask, values.data());
    xcb_map_window(server_.get(), window_);
    if (options.wantsAlpha)
        requestAlpha();
    server_.manage("_NET_SYSTEM_TRAY_S0", window_);
}

DockTray::~DockTray() = default;

const std::vector<xcb_window_t>& DockTray::icons()
{
    process();
    return icons_;
}

int DockTray::requests()
{
    process();
    return requests_;
}

ScreenArea DockTray::iconArea() const
{
    return {trayMargin, trayMargin, options_.iconSize, options_.iconSize};
}

void DockTray::putOut()
{
    for (const auto icon : icons())
        xcb_reparent_window(server_.get(), icon, server_.root(), 0, 0);
    server_.sync();
}

void DockTray::process()
{
    while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(server_.get())}) {
        const auto kind = event->response_type & 0x7F;
        if (kind == XCB_CLIENT_MESSAGE) {
            const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(*event);
            if (message.type == server_.atom("_NET_SYSTEM_TRAY_OPCODE")
                && message.data.data32[1] == 0)
                take(message.data.data32[2]);
        } else if (kind == XCB_DESTROY_NOTIFY)
            std::erase(icons_, reinterpret_cast<const xcb_destroy_notify_event_t&>(*event).window);
        else if (kind == XCB_REPARENT_NOTIFY) {
            const auto& move = reinterpret_cast<const xcb_reparent_notify_event_t&>(*event);
            if (move.parent != window_)
                std::erase(icons_, move.window);
        }
    }
}

void DockTray::take(xcb_window_t icon)
{
    ++requests_;
    auto* const server = server_.get();
    if (options_.savesIcons)
        xcb_change_save_set(server, XCB_SET_MODE_INSERT, icon);
    xcb_reparent_window(server, icon, window_, trayMargin, trayMargin);
    const std::array<std::uint32_t, 2> size{options_.iconSize, options_.iconSize};
    xcb_configure_window(
        server, icon, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size.data());
    xcb_map_window(server, icon);
    server_.sync();
    icons_.push_back(icon);
}

void DockTray::requestAlpha()
{
    for (auto depths = xcb_screen_allowed_depths_iterator(&server_.screen()); depths.rem;
         xcb_depth_next(&depths))
        if (depths.data->depth == 32)
            xcb_change_property(server_.get(), XCB_PROP_MODE_REPLACE, window_,
                server_.atom("_NET_SYSTEM_TRAY_VISUAL"), XCB_ATOM_VISUALID, 32, 1,
                &xcb_depth_visuals(depths.data)->visual_id);
}

} // namespace brindlex
