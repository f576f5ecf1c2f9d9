#include "platform/linux/windows/X11ActiveWindow.h"

#include "platform/linux/windows/X11WindowReading.h"

#include <algorithm>
#include <unistd.h>
#include <utility>

namespace brindlex {
namespace {

constexpr int noneLastsMilliseconds = 50;

} // namespace

X11ActiveWindow::X11ActiveWindow(X11Connection& connection)
    : connection_(connection), active_(connection.atom("_NET_ACTIVE_WINDOW")),
      managed_(connection.atom("_NET_CLIENT_LIST")), title_(connection.atom("_NET_WM_NAME"))
{
    believeNone_.setSingleShot(true);
    believeNone_.setTimerType(Qt::PreciseTimer);
    believeNone_.setInterval(noneLastsMilliseconds);
    QObject::connect(&believeNone_, &QTimer::timeout, &believeNone_, [this] { decide(); });

    connection_.listenToRoot(XCB_EVENT_MASK_PROPERTY_CHANGE);
    events_ = connection_.observeEvents([this](const xcb_generic_event_t& event) {
        if ((event.response_type & 0x7f) == XCB_PROPERTY_NOTIFY)
            notifyOf(reinterpret_cast<const xcb_property_notify_event_t&>(event));
    });
    become(activeWindow(connection_));
}

std::optional<ActiveWindow> X11ActiveWindow::current() const
{
    if (window_ == 0 || !connection_.isAlive())
        return {};
    const auto description = describe(connection_, {window_}).front();
    if (!description || description->processIdentifier == ::getpid())
        return {};
    return ActiveWindow{WindowIdentity{window_}, ProcessIdentity{description->processIdentifier},
        windowTitle(connection_, window_)};
}

Subscription X11ActiveWindow::observe(std::function<void()> handler)
{
    return observers_.add(std::move(handler));
}

Subscription X11ActiveWindow::observeTitle(std::function<void()> handler)
{
    return titleObservers_.add(std::move(handler));
}

void X11ActiveWindow::notifyOf(const xcb_property_notify_event_t& change)
{
    if (change.window == window_ && change.atom == title_)
        titleObservers_.notify();
    if (change.window != connection_.root())
        return;
    if (change.atom == active_)
        read();
    else if (change.atom == managed_)
        doubtUnlessManaged();
}

void X11ActiveWindow::read()
{
    const auto window = activeWindow(connection_);
    if (window != 0)
        become(window);
    else
        doubt();
}

void X11ActiveWindow::doubt()
{
    if (window_ != 0 && !believeNone_.isActive())
        believeNone_.start();
}

void X11ActiveWindow::doubtUnlessManaged()
{
    // Some window managers go on naming a window as active after it was closed.
    if (!isManaged(window_))
        doubt();
}

void X11ActiveWindow::decide()
{
    const auto window = activeWindow(connection_);
    become(isManaged(window) ? window : 0);
}

bool X11ActiveWindow::isManaged(xcb_window_t window) const
{
    const auto windows = managedWindows(connection_);
    return std::find(windows.begin(), windows.end(), window) != windows.end();
}

void X11ActiveWindow::become(xcb_window_t window)
{
    believeNone_.stop();
    const auto before = std::exchange(window_, window);
    if (before == window)
        return;
    // A window that goes on changing behind others must not wake the program.
    if (before != 0)
        connection_.stopListeningTo(before, XCB_EVENT_MASK_PROPERTY_CHANGE);
    if (window != 0)
        connection_.listenTo(window, XCB_EVENT_MASK_PROPERTY_CHANGE);
    observers_.notify();
}

} // namespace brindlex
