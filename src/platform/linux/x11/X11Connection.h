#pragma once

#include "foundation/Subscribers.h"
#include "foundation/Subscription.h"

#include <QSocketNotifier>
#include <xcb/xcb.h>

#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace brindlex {

/// What the X library hands out to be freed: replies, errors, events.
struct X11Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename Message>
using X11Message = std::unique_ptr<Message, X11Free>;

/// The program's own connection to the X server, apart from that of the windows.
///
/// Events reach the observers from the Qt loop of the thread that made the connection, also those
/// that came in while somebody waited for a reply; never from inside a request. Requests about
/// windows that have gone fail without a word. One thread only, after the Qt application was made.
class X11Connection {
public:
    using EventHandler = std::function<void(const xcb_generic_event_t& event)>;

    /// Connects to the server with the given name; empty means the one that `DISPLAY` names.
    explicit X11Connection(const std::string& display = {});
    ~X11Connection();
    X11Connection(const X11Connection&) = delete;
    X11Connection& operator=(const X11Connection&) = delete;

    /// False when the server could not be reached, and for good once it has gone.
    bool isAlive() const;

    /// For requests; never null. Requests to a server that has gone do nothing and get no reply.
    xcb_connection_t* get() const { return connection_; }
    /// The root window of the default screen; 0 without a server.
    xcb_window_t root() const { return root_; }

    /// The number of a name, asked for once; 0 when the server has gone.
    xcb_atom_t atom(std::string_view name);

    /// Adds to the kinds of events of the root window that come to this connection.
    void listenToRoot(std::uint32_t eventMask);

    /// The same for any window. Several may listen to one window through the connection.
    void listenTo(xcb_window_t window, std::uint32_t eventMask);
    /// Takes these kinds away again.
    void stopListeningTo(xcb_window_t window, std::uint32_t eventMask);

    /// Every event, in the order of arrival; whoever observes takes what concerns it.
    Subscription observeEvents(EventHandler handler);

    /// Notifies once, from the loop, when the server goes while the connection is open.
    Subscription observeEnd(std::function<void()> handler);

private:
    void handOut(bool readSocket);
    void endOnce();

    xcb_connection_t* connection_;
    xcb_window_t root_ = 0;
    std::unordered_map<xcb_window_t, std::uint32_t> eventMasks_;
    bool ended_ = false;
    std::unordered_map<std::string, xcb_atom_t> atoms_;
    Subscribers<EventHandler> eventObservers_;
    Subscribers<std::function<void()>> endObservers_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace brindlex
