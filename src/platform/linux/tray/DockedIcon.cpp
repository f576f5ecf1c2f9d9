#include "platform/linux/tray/DockedIcon.h"

#include "platform/linux/tray/PictureDrawing.h"
#include "platform/linux/tray/TrayPicture.h"
#include "platform/linux/x11/X11Properties.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace brindlex {
namespace {

/// Until the tray has given it another one, and the least that it is good for.
constexpr std::uint16_t firstSize = 22;
/// One request holds no more; a panel with larger icons has them in its middle.
constexpr int largestSize = 128;

constexpr std::uint32_t dockedIconEvents = XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_BUTTON_PRESS
    | XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_ENTER_WINDOW | XCB_EVENT_MASK_LEAVE_WINDOW;

const xcb_screen_t* screenOf(const X11Connection& connection)
{
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    while (screens.rem > 1 && screens.data->root != connection.root())
        xcb_screen_next(&screens);
    return screens.data;
}

/// Whether it is a visual of the screen with an alpha.
bool hasAlpha(const xcb_screen_t& screen, xcb_visualid_t visual)
{
    constexpr std::uint8_t depthWithAlpha = 32;
    for (auto depths = xcb_screen_allowed_depths_iterator(&screen); depths.rem;
         xcb_depth_next(&depths)) {
        if (depths.data->depth != depthWithAlpha)
            continue;
        const auto* const first = xcb_depth_visuals(depths.data);
        const auto* const end = first + xcb_depth_visuals_length(depths.data);
        return std::any_of(
            first, end, [&](const auto& offered) { return offered.visual_id == visual; });
    }
    return false;
}

/// The visual that the tray wants its icons to have.
std::optional<xcb_visualid_t> wantedVisual(X11Connection& connection, xcb_window_t tray)
{
    const auto values
        = X11PropertyRequest(connection, tray, "_NET_SYSTEM_TRAY_VISUAL", sizeof(std::uint32_t))
              .values();
    if (!values || values->empty())
        return {};
    return values->front();
}

/// In the form of `WM_NORMAL_HINTS`; without it some trays make an icon one pixel wide.
std::array<std::uint32_t, 18> leastSizeHints()
{
    constexpr std::uint32_t hasLeastSize = 1U << 4U;
    std::array<std::uint32_t, 18> hints{hasLeastSize};
    hints[5] = firstSize;
    hints[6] = firstSize;
    return hints;
}

void setText(
    X11Connection& connection, xcb_window_t window, const char* property, const std::string& text)
{
    xcb_change_property(connection.get(), XCB_PROP_MODE_REPLACE, window, connection.atom(property),
        connection.atom("UTF8_STRING"), 8, static_cast<std::uint32_t>(text.size()), text.data());
}

} // namespace

DockedIcon::DockedIcon(
    X11Connection& connection, xcb_window_t tray, const std::string& title, Handlers handlers)
    : connection_(connection), handlers_(std::move(handlers)), width_(firstSize), height_(firstSize)
{
    create(tray);
    describe();
    setTitle(title);
    connection_.listenTo(window_, dockedIconEvents);
    requestDock(tray);
}

DockedIcon::~DockedIcon()
{
    connection_.stopListeningTo(window_, dockedIconEvents);
    xcb_destroy_window(connection_.get(), window_);
    if (colours_ != XCB_NONE)
        xcb_free_colormap(connection_.get(), colours_);
    xcb_flush(connection_.get());
}

void DockedIcon::setTitle(const std::string& title)
{
    setText(connection_, window_, "_NET_WM_NAME", title);
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_NAME,
        XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(title.size()), title.data());
    xcb_flush(connection_.get());
}

void DockedIcon::receive(const xcb_generic_event_t& event)
{
    switch (event.response_type & 0x7F) {
    case XCB_EXPOSE:
        if (const auto& exposed = reinterpret_cast<const xcb_expose_event_t&>(event);
            exposed.window == window_ && exposed.count == 0)
            paint();
        break;
    case XCB_REPARENT_NOTIFY:
        noteParent(reinterpret_cast<const xcb_reparent_notify_event_t&>(event));
        break;
    case XCB_CONFIGURE_NOTIFY:
        noteSize(reinterpret_cast<const xcb_configure_notify_event_t&>(event));
        break;
    case XCB_DESTROY_NOTIFY:
        if (reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == window_)
            hasEnded_ = true;
        break;
    case XCB_ENTER_NOTIFY:
    case XCB_LEAVE_NOTIFY:
        if (reinterpret_cast<const xcb_enter_notify_event_t&>(event).event == window_)
            handlers_.hovered((event.response_type & 0x7F) == XCB_ENTER_NOTIFY);
        break;
    case XCB_BUTTON_PRESS:
        press(reinterpret_cast<const xcb_button_press_event_t&>(event));
        break;
    default:
        break;
    }
}

/// A tray that says nothing of visuals shows its own background behind its icons.
void DockedIcon::create(xcb_window_t tray)
{
    auto* const server = connection_.get();
    const auto& screen = *screenOf(connection_);
    const auto wanted = wantedVisual(connection_, tray);
    const bool isTranslucent = wanted && hasAlpha(screen, *wanted);
    visual_ = isTranslucent ? *wanted : screen.root_visual;
    window_ = xcb_generate_id(server);
    std::uint32_t mask = XCB_CW_BACK_PIXMAP;
    std::array<std::uint32_t, 3> values{XCB_BACK_PIXMAP_PARENT_RELATIVE, 0, 0};
    if (isTranslucent) {
        colours_ = xcb_generate_id(server);
        xcb_create_colormap(server, XCB_COLORMAP_ALLOC_NONE, colours_, screen.root, visual_);
        mask = XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_COLORMAP;
        values = {0, 0, colours_};
    }
    constexpr std::uint8_t depthWithAlpha = 32;
    xcb_create_window(server, isTranslucent ? depthWithAlpha : screen.root_depth, window_,
        screen.root, -1, -1, firstSize, firstSize, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual_, mask,
        values.data());
}

/// What the XEMBED protocol and those who list windows look for.
void DockedIcon::describe()
{
    constexpr std::array<std::uint32_t, 2> versionAndMapped{0, 1};
    const auto info = connection_.atom("_XEMBED_INFO");
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window_, info, info, 32,
        versionAndMapped.size(), versionAndMapped.data());
    constexpr std::array wmClass{
        'b', 'r', 'i', 'n', 'd', 'l', 'e', 'x', '\0', 'B', 'r', 'i', 'n', 'd', 'l', 'e', 'x', '\0'};
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_CLASS,
        XCB_ATOM_STRING, 8, wmClass.size(), wmClass.data());
    const auto hints = leastSizeHints();
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_NORMAL_HINTS,
        XCB_ATOM_WM_SIZE_HINTS, 32, hints.size(), hints.data());
}

void DockedIcon::requestDock(xcb_window_t tray)
{
    constexpr std::uint32_t requestToDock = 0;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = tray;
    message.type = connection_.atom("_NET_SYSTEM_TRAY_OPCODE");
    message.data.data32[0] = XCB_CURRENT_TIME;
    message.data.data32[1] = requestToDock;
    message.data.data32[2] = window_;
    xcb_send_event(connection_.get(), false, tray, XCB_EVENT_MASK_NO_EVENT,
        reinterpret_cast<const char*>(&message));
    xcb_flush(connection_.get());
}

/// A tray that ends leaves its icons to the root window.
void DockedIcon::noteParent(const xcb_reparent_notify_event_t& event)
{
    if (event.window != window_)
        return;
    if (event.parent == connection_.root()) {
        hasEnded_ = true;
        return;
    }
    if (!std::exchange(isDocked_, true))
        handlers_.docked();
}

void DockedIcon::noteSize(const xcb_configure_notify_event_t& event)
{
    if (event.window != window_ || (event.width == width_ && event.height == height_))
        return;
    width_ = event.width;
    height_ = event.height;
    paint();
}

/// The X server gives who gets a press the pointer until the release; a menu needs it now.
void DockedIcon::press(const xcb_button_press_event_t& event)
{
    if (event.event != window_)
        return;
    xcb_ungrab_pointer(connection_.get(), XCB_CURRENT_TIME);
    const X11Message<xcb_get_input_focus_reply_t> reply(xcb_get_input_focus_reply(
        connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
    handlers_.pressed(event.detail);
}

void DockedIcon::paint()
{
    const int size = std::clamp(std::min(width_, height_), 1, largestSize);
    drawOverBackground(connection_, window_, visual_, {width_, height_}, trayPicture(size));
    xcb_flush(connection_.get());
}

} // namespace brindlex
