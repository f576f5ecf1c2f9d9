#pragma once

#include "platform/PasteboardState.h"
#include "platform/linux/pasteboard/PasteboardLimits.h"
#include "platform/linux/pasteboard/X11SelectionTransfers.h"

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace brindlex {

/// Gives a state to the applications that request a selection of a window: which targets there are,
/// since when, and each of them, alone and several at once. One thread only, with a Qt loop.
class X11SelectionOffer {
public:
    X11SelectionOffer(
        X11Connection& connection, xcb_window_t owner, const PasteboardLimits& limits);

    /// Gives the state to those who request it from now on; what is under way goes on. Without a
    /// state every request is refused.
    void offer(std::shared_ptr<const PasteboardState> state);

    /// Since when the window has been the owner, by the server's time.
    void setBeginning(xcb_timestamp_t time) { beginning_ = time; }

    /// The targets of the state, those left out that say how to transfer.
    const std::vector<xcb_atom_t>& targets() const { return targets_; }

private:
    void answer(const xcb_selection_request_event_t& request);
    bool give(const X11Recipient& to, xcb_atom_t target);
    bool giveSeveral(const X11Recipient& to);
    bool giveNumbers(
        const X11Recipient& to, xcb_atom_t type, const std::vector<std::uint32_t>& numbers);
    std::vector<xcb_atom_t> allTargets();
    std::vector<std::uint32_t> pairsOf(const X11Recipient& to);

    X11Connection& connection_;
    const xcb_window_t owner_;
    std::shared_ptr<const PasteboardState> state_;
    std::vector<xcb_atom_t> targets_;
    std::unordered_map<xcb_atom_t, std::string> names_;
    xcb_timestamp_t beginning_ = XCB_CURRENT_TIME;
    X11SelectionTransfers transfers_;
    Subscription events_;
};

} // namespace brindlex
