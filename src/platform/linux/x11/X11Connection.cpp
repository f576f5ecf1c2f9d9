#include "platform/linux/x11/X11Connection.h"

#include <QAbstractEventDispatcher>

#include <utility>

namespace brindlex {
namespace {

/// Events handed out in one go: a flood of them must leave the loop time for its other work.
constexpr int eventsAtOnce = 256;

} // namespace

X11Connection::X11Connection(const std::string& display)
{
    int screenNumber = 0;
    connection_ = xcb_connect(display.empty() ? nullptr : display.c_str(), &screenNumber);
    if (xcb_connection_has_error(connection_))
        return;
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection_));
    for (; screenNumber > 0 && screens.rem > 1; --screenNumber)
        xcb_screen_next(&screens);
    root_ = screens.data->root;

    notifier_ = std::make_unique<QSocketNotifier>(
        xcb_get_file_descriptor(connection_), QSocketNotifier::Read);
    QObject::connect(
        notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { handOut(true); });
    // Waiting for a reply also reads events off the socket, which then stays silent about them.
    if (auto* dispatcher = QAbstractEventDispatcher::instance())
        for (const auto turn :
            {&QAbstractEventDispatcher::aboutToBlock, &QAbstractEventDispatcher::awake})
            QObject::connect(dispatcher, turn, notifier_.get(), [this] { handOut(false); });
}

X11Connection::~X11Connection()
{
    notifier_.reset();
    xcb_disconnect(connection_);
}

bool X11Connection::isAlive() const { return root_ != 0 && !xcb_connection_has_error(connection_); }

xcb_atom_t X11Connection::atom(std::string_view name)
{
    const auto known = atoms_.find(std::string(name));
    if (known != atoms_.end())
        return known->second;
    const auto request
        = xcb_intern_atom(connection_, false, static_cast<std::uint16_t>(name.size()), name.data());
    const X11Message<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection_, request, nullptr));
    if (!reply)
        return XCB_ATOM_NONE;
    return atoms_.emplace(name, reply->atom).first->second;
}

void X11Connection::listenToRoot(std::uint32_t eventMask) { listenTo(root_, eventMask); }

void X11Connection::listenTo(xcb_window_t window, std::uint32_t eventMask)
{
    auto& mask = eventMasks_[window];
    mask |= eventMask;
    xcb_change_window_attributes(connection_, window, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(connection_);
}

void X11Connection::stopListeningTo(xcb_window_t window, std::uint32_t eventMask)
{
    const auto listened = eventMasks_.find(window);
    if (listened == eventMasks_.end())
        return;
    listened->second &= ~eventMask;
    xcb_change_window_attributes(connection_, window, XCB_CW_EVENT_MASK, &listened->second);
    xcb_flush(connection_);
    if (listened->second == 0)
        eventMasks_.erase(listened);
}

Subscription X11Connection::observeEvents(EventHandler handler)
{
    return eventObservers_.add(std::move(handler));
}

Subscription X11Connection::observeEnd(std::function<void()> handler)
{
    return endObservers_.add(std::move(handler));
}

void X11Connection::handOut(bool readSocket)
{
    for (int count = 0; count < eventsAtOnce; ++count) {
        const X11Message<xcb_generic_event_t> event(
            readSocket ? xcb_poll_for_event(connection_) : xcb_poll_for_queued_event(connection_));
        if (!event)
            break;
        const bool isError = event->response_type == 0;
        if (!isError)
            eventObservers_.notify(*event);
    }
    xcb_flush(connection_);
    if (xcb_connection_has_error(connection_))
        endOnce();
}

void X11Connection::endOnce()
{
    if (std::exchange(ended_, true))
        return;
    notifier_->setEnabled(false);
    endObservers_.notify();
}

} // namespace brindlex
