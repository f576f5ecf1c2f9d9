#pragma once

#include "platform/PasteboardState.h"
#include "platform/linux/pasteboard/PasteboardLimits.h"
#include "platform/linux/pasteboard/QtImageConverting.h"
#include "platform/linux/pasteboard/X11PasteboardRead.h"
#include "platform/linux/pasteboard/X11RequestorWindows.h"
#include "platform/linux/pasteboard/X11SelectionOffer.h"
#include "platform/linux/x11/X11Connection.h"

#include <xcb/xfixes.h>

#include <QElapsedTimer>
#include <QTimer>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace brindlex {

/// The clipboard of the X server: follows who owns it, reads what others copy, owns it for the
/// program, and keeps what was copied when its owner ends.
///
///              ┌──────────────another copies──────────────┐
///              ▼                                          │
///     nobody's, others' (read while it is observed) ──▶ the program's
///              │                                          ▲
///              └──program writes, or the owner has ended──┘
///
/// One thread only, with a Qt loop; it waits for no application.
class X11ClipboardWorker {
public:
    /// Called from the loop with what is there from now on, once that is known. `writes` is the
    /// number of the program's own before it.
    using Handler
        = std::function<void(std::shared_ptr<const PasteboardState> state, std::uint64_t writes)>;

    /// `isObserved` says whether what others copy is to be read and kept; it outlives the worker.
    X11ClipboardWorker(const std::string& display, const PasteboardLimits& limits,
        const std::atomic<bool>& isObserved, Handler handler);

    /// Puts the state there; one with nothing to read leaves the clipboard without an owner.
    void write(std::shared_ptr<const PasteboardState> state);

    /// Makes what the program has put there what is selected with the mouse, too, as long as it is
    /// there and nobody selects anything else. Nothing happens while it is another's.
    void shareWithMouse();

    /// Hands what the program owns to the session's clipboard manager, where there is one, and then
    /// calls the handler, in any case in time.
    void end(std::function<void()> ended);

private:
    void receive(const xcb_generic_event_t& event);
    bool isOutOfDate(const xcb_generic_event_t& event) const;
    void followOwner(const xcb_xfixes_selection_notify_event_t& change);
    void becomeOwner(xcb_timestamp_t since);
    void becomeOther();
    void endSharing();
    void read(xcb_timestamp_t since);
    void report(PasteboardState state);
    void log(const std::string& problem);
    void endHandover();

    const PasteboardLimits limits_;
    const std::atomic<bool>& isObserved_;
    Handler handler_;
    X11Connection connection_;
    const xcb_atom_t clipboard_;
    const xcb_window_t window_;
    std::uint8_t firstXFixesEvent_ = 0;
    QtImageConverting images_;
    X11RequestorWindows windows_{connection_};
    X11SelectionOffer offer_;
    /// What is there, once it is known.
    std::shared_ptr<const PasteboardState> state_;
    /// What the program has put there or wants to put there.
    std::shared_ptr<const PasteboardState> own_;
    bool isOwner_ = false;
    /// While what is selected with the mouse is the program's.
    std::optional<xcb_timestamp_t> sharedSince_;
    std::uint64_t writes_ = 0;
    /// The number of the request by which the program wrote last, until the server has said that it
    /// was done: what it says of the time before is out of date.
    std::optional<std::uint32_t> pendingWrite_;
    QElapsedTimer sinceLog_;
    std::unique_ptr<X11PasteboardRead> read_;
    std::function<void()> ended_;
    std::unique_ptr<X11SelectionRead> handover_;
    QTimer handoverDeadline_;
    Subscription events_;
};

} // namespace brindlex
