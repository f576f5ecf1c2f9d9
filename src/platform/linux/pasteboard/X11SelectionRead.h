#pragma once

#include "foundation/Cases.h"
#include "platform/linux/pasteboard/PasteboardLimits.h"
#include "platform/linux/pasteboard/X11RequestorWindows.h"

#include <QTimer>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace brindlex {

/// Why a selection could not be read as a target: its owner refuses, sends nothing for too long, or
/// sends too much.
enum class SelectionProblem { refused, silent, tooLarge };

/// What an owner has sent.
struct SelectionContent {
    xcb_atom_t type = XCB_ATOM_NONE;
    /// Bits of one unit: 8, 16 or 32.
    std::uint8_t format = 0;
    std::string bytes{};

    bool operator==(const SelectionContent&) const = default;
};

/// Reads a selection as one target, whole or in the pieces in which its owner sends it.
///
///     requested ──notify──▶ read
///         │  └─notify of pieces──▶ receiving ──empty piece──▶ read
///         │                         │  ▲
///         │                         └──┘ piece
///         └──refused, silent or tooLarge, from everywhere──▶ failed
///
/// Its end ends the reading. One thread only, with a Qt loop.
class X11SelectionRead {
public:
    struct Request {
        xcb_atom_t selection = XCB_ATOM_NONE;
        xcb_atom_t target = XCB_ATOM_NONE;
        /// Of the server, when what is requested was there.
        xcb_timestamp_t time = XCB_CURRENT_TIME;
        /// What the target is requested with, which most targets are not.
        std::vector<xcb_atom_t> parameters{};
    };
    using Outcome = Cases<SelectionContent, SelectionProblem>;
    /// Called once from the loop; the reading may be ended inside.
    using Handler = std::function<void(Outcome outcome)>;

    /// The windows and their connection outlive the reading.
    X11SelectionRead(X11Connection& connection, X11RequestorWindows& windows,
        const Request& request, const PasteboardLimits& limits, Handler handler);
    ~X11SelectionRead();
    X11SelectionRead(const X11SelectionRead&) = delete;
    X11SelectionRead& operator=(const X11SelectionRead&) = delete;

private:
    void receive(const xcb_generic_event_t& event);
    void takeNotice(const xcb_selection_notify_event_t& notice);
    void takePiece();
    X11Message<xcb_get_property_reply_t> property() const;
    void finish(Outcome outcome, bool isOwnerDone);

    X11Connection& connection_;
    X11RequestorWindows& windows_;
    const Request request_;
    const PasteboardLimits limits_;
    Handler handler_;
    const xcb_window_t window_;
    const xcb_atom_t property_;
    /// What has come in pieces so far.
    SelectionContent content_;
    bool isReceiving_ = false;
    bool isOwnerDone_ = false;
    QTimer silence_;
    Subscription events_;
};

} // namespace brindlex
