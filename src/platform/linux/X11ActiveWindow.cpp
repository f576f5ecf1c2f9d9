#include "platform/linux/X11ActiveWindow.h"

#include "platform/linux/X11WindowReading.h"

#include <unistd.h>
#include <utility>

namespace brindlex {
namespace {

constexpr int noneLastsMilliseconds = 50;

} // namespace

X11ActiveWindow::X11ActiveWindow(X11Connection& connection) : connection_(connection)
{
    believeNone_.setSingleShot(true);
    believeNone_.setTimerType(Qt::PreciseTimer);
    believeNone_.setInterval(noneLastsMilliseconds);
    QObject::connect(&believeNone_, &QTimer::timeout, &believeNone_, [this] { become(0); });

    connection_.listenToRoot(XCB_EVENT_MASK_PROPERTY_CHANGE);
    const auto property = connection_.atom("_NET_ACTIVE_WINDOW");
    events_ = connection_.observeEvents([this, property](const xcb_generic_event_t& event) {
        if ((event.response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
            return;
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.window == connection_.root() && change.atom == property)
            read();
    });
    window_ = activeWindow(connection_);
}

std::optional<ActiveWindow> X11ActiveWindow::current() const
{
    if (window_ == 0)
        return {};
    const auto description = describe(connection_, {window_}).front();
    if (description.processIdentifier == ::getpid())
        return {};
    return ActiveWindow{window_, description.processIdentifier, windowTitle(connection_, window_)};
}

Subscription X11ActiveWindow::observe(std::function<void()> handler)
{
    return observers_.add(std::move(handler));
}

void X11ActiveWindow::read()
{
    const auto window = activeWindow(connection_);
    if (window != 0)
        become(window);
    else if (window_ != 0 && !believeNone_.isActive())
        believeNone_.start();
}

void X11ActiveWindow::become(xcb_window_t window)
{
    believeNone_.stop();
    if (std::exchange(window_, window) != window)
        observers_.notify();
}

} // namespace brindlex
