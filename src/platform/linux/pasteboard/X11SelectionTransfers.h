#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <QTimer>

#include <chrono>
#include <list>
#include <string>

namespace brindlex {

/// Where an application wants what it has requested.
struct X11Recipient {
    xcb_window_t window = XCB_WINDOW_NONE;
    xcb_atom_t property = XCB_ATOM_NONE;

    bool operator==(const X11Recipient&) const = default;
};

/// Sends applications what they have requested of a selection, what is too large for one message in
/// pieces, each once the one before was taken. Any number of applications side by side; one that
/// takes nothing for too long gets no more. One thread only, with a Qt loop.
class X11SelectionTransfers {
public:
    X11SelectionTransfers(X11Connection& connection, std::chrono::milliseconds silence);
    ~X11SelectionTransfers();
    X11SelectionTransfers(const X11SelectionTransfers&) = delete;
    X11SelectionTransfers& operator=(const X11SelectionTransfers&) = delete;

    /// Puts the bytes, or the announcement of their pieces, where they are wanted. False when too
    /// many others wait for pieces.
    bool send(const X11Recipient& to, xcb_atom_t type, std::string bytes);

private:
    struct Transfer {
        X11Recipient to{};
        xcb_atom_t type = XCB_ATOM_NONE;
        std::string bytes{};
        std::size_t sent = 0;
        /// Whether a piece was taken since the last look.
        bool isAlive = true;
    };
    using Place = std::list<Transfer>::iterator;

    void receive(const xcb_generic_event_t& event);
    void sendPiece(Place transfer);
    void endThoseOf(xcb_window_t window);
    void endSilent();
    void end(Place transfer);

    X11Connection& connection_;
    std::list<Transfer> transfers_;
    QTimer silence_;
    Subscription events_;
};

} // namespace brindlex
