#include "platform/linux/windows/X11WindowReading.h"

#include "foundation/Text.h"
#include "platform/linux/windows/X11ClientProcess.h"
#include "platform/linux/x11/X11Properties.h"

#include <limits>
#include <unistd.h>
#include <utility>

namespace brindlex {
namespace {

constexpr std::uint32_t classLimit = 1024;
constexpr std::uint32_t titleLimit = 4096;
constexpr std::uint32_t machineLimit = 256;
constexpr std::uint32_t windowLimit = 4 * 4096;

std::string upToNull(std::string_view bytes)
{
    return std::string(bytes.substr(0, bytes.find('\0')));
}

const std::string& thisMachine()
{
    static const std::string name = [] {
        char buffer[256] = {};
        ::gethostname(buffer, sizeof buffer - 1);
        return std::string(buffer);
    }();
    return name;
}

/// Windows of programs on other machines name their process there. Some give the full name of the
/// machine and some the short one.
bool isThisMachine(const std::string& name)
{
    const auto host = [](const std::string& full) { return full.substr(0, full.find('.')); };
    return name.empty() || name == "localhost" || host(name) == host(thisMachine());
}

struct DescriptionRequest {
    X11Connection& connection;
    xcb_window_t window;
    X11PropertyRequest classes;
    X11PropertyRequest process;
    X11PropertyRequest machine;

    DescriptionRequest(X11Connection& connection_, xcb_window_t window_)
        : connection(connection_), window(window_),
          classes(connection, window, "WM_CLASS", classLimit),
          process(connection, window, "_NET_WM_PID", 4),
          machine(connection, window, "WM_CLIENT_MACHINE", machineLimit)
    {
    }
};

/// Who a window belongs to that says nothing of itself.
enum class Nameless { isUnknown, isAsked };

std::optional<X11WindowDescription> description(DescriptionRequest& request, Nameless nameless)
{
    const auto classes = request.classes.bytes().value_or("");
    if (request.classes.windowHasGone())
        return {};
    X11WindowDescription result;
    const auto instance = upToNull(classes);
    result.instance = wellFormed(instance);
    if (instance.size() < classes.size())
        result.className
            = wellFormed(upToNull(std::string_view(classes).substr(instance.size() + 1)));

    const auto process = request.process.values();
    const auto machine = request.machine.bytes();
    const bool isNamed = process && !process->empty()
        && process->front() <= static_cast<std::uint32_t>(std::numeric_limits<pid_t>::max());
    const bool isHere = isThisMachine(upToNull(machine.value_or("")));
    if (isNamed && isHere)
        result.processIdentifier = process->front();
    const bool saysNothing
        = result.instance.empty() && result.className.empty() && result.processIdentifier == 0;
    if (!saysNothing || nameless == Nameless::isUnknown)
        return result;
    if (isHere)
        result.processIdentifier = clientProcess(request.connection, request.window);
    if (result.processIdentifier == 0)
        result.nameless = request.window;
    return result;
}

struct TitleRequest {
    X11PropertyRequest modern;
    X11PropertyRequest old;

    TitleRequest(X11Connection& connection, xcb_window_t window)
        : modern(connection, window, "_NET_WM_NAME", titleLimit),
          old(connection, window, "WM_NAME", titleLimit)
    {
    }
};

std::string title(TitleRequest& request)
{
    const auto modern = request.modern.bytes();
    const auto old = request.old.bytes();
    return wellFormed(upToNull(modern && !modern->empty() ? *modern : old.value_or("")));
}

std::vector<std::optional<X11WindowDescription>> described(
    X11Connection& connection, const std::vector<xcb_window_t>& windows, Nameless nameless)
{
    std::vector<DescriptionRequest> requests;
    requests.reserve(windows.size());
    for (const auto window : windows)
        requests.emplace_back(connection, window);
    std::vector<std::optional<X11WindowDescription>> descriptions;
    descriptions.reserve(windows.size());
    for (auto& request : requests)
        descriptions.push_back(description(request, nameless));
    return descriptions;
}

} // namespace

xcb_window_t activeWindow(X11Connection& connection)
{
    const auto window
        = X11PropertyRequest(connection, connection.root(), "_NET_ACTIVE_WINDOW", 4).values();
    return window && !window->empty() ? window->front() : xcb_window_t{XCB_WINDOW_NONE};
}

Subscription observeActiveWindow(X11Connection& connection, std::function<void()> handler)
{
    connection.listenToRoot(XCB_EVENT_MASK_PROPERTY_CHANGE);
    const auto active = connection.atom("_NET_ACTIVE_WINDOW");
    return connection.observeEvents(
        [root = connection.root(), active, handler = std::move(handler)](
            const xcb_generic_event_t& event) {
            if ((event.response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
                return;
            const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
            if (change.window == root && change.atom == active)
                handler();
        });
}

std::vector<xcb_window_t> managedWindows(X11Connection& connection)
{
    return X11PropertyRequest(connection, connection.root(), "_NET_CLIENT_LIST", windowLimit)
        .values()
        .value_or(std::vector<xcb_window_t>());
}

std::vector<std::optional<X11WindowDescription>> describe(
    X11Connection& connection, const std::vector<xcb_window_t>& windows)
{
    return described(connection, windows, Nameless::isAsked);
}

std::vector<std::optional<X11WindowDescription>> claimsOf(
    X11Connection& connection, const std::vector<xcb_window_t>& windows)
{
    return described(connection, windows, Nameless::isUnknown);
}

std::string windowTitle(X11Connection& connection, xcb_window_t window)
{
    return windowTitles(connection, {window}).front();
}

std::vector<std::string> windowTitles(
    X11Connection& connection, const std::vector<xcb_window_t>& windows)
{
    std::vector<TitleRequest> requests;
    requests.reserve(windows.size());
    for (const auto window : windows)
        requests.emplace_back(connection, window);
    std::vector<std::string> titles;
    titles.reserve(windows.size());
    for (auto& request : requests)
        titles.push_back(title(request));
    return titles;
}

} // namespace brindlex
