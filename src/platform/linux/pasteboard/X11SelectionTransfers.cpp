#include "platform/linux/pasteboard/X11SelectionTransfers.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace brindlex {
namespace {

/// The size of a piece: what every server takes as one request.
constexpr std::size_t pieceSize = 256 * 1024 - 64;

/// Nobody sends to so many at once but to those who take nothing.
constexpr std::size_t mostTransfers = 64;

constexpr std::uint32_t recipientEvents
    = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;

} // namespace

X11SelectionTransfers::X11SelectionTransfers(
    X11Connection& connection, std::chrono::milliseconds silence)
    : connection_(connection), events_(connection.observeEvents(
                                   [this](const xcb_generic_event_t& event) { receive(event); }))
{
    silence_.setInterval(silence);
    silence_.callOnTimeout([this] { endSilent(); });
}

X11SelectionTransfers::~X11SelectionTransfers()
{
    while (!transfers_.empty())
        end(transfers_.begin());
}

bool X11SelectionTransfers::send(const X11Recipient& to, xcb_atom_t type, std::string bytes)
{
    auto* const server = connection_.get();
    if (bytes.size() <= pieceSize) {
        xcb_change_property(server, XCB_PROP_MODE_REPLACE, to.window, to.property, type, 8,
            static_cast<std::uint32_t>(bytes.size()), bytes.data());
        return true;
    }
    if (transfers_.size() >= mostTransfers)
        return false;
    connection_.listenTo(to.window, recipientEvents);
    const auto size = static_cast<std::uint32_t>(bytes.size());
    xcb_change_property(server, XCB_PROP_MODE_REPLACE, to.window, to.property,
        connection_.atom("INCR"), 32, 1, &size);
    transfers_.push_back({.to = to, .type = type, .bytes = std::move(bytes)});
    if (!silence_.isActive())
        silence_.start();
    return true;
}

void X11SelectionTransfers::receive(const xcb_generic_event_t& event)
{
    const auto kind = event.response_type & 0x7F;
    if (kind == XCB_DESTROY_NOTIFY)
        endThoseOf(reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window);
    if (kind != XCB_PROPERTY_NOTIFY)
        return;
    const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    const X11Recipient recipient{change.window, change.atom};
    const auto transfer = std::ranges::find(transfers_, recipient, &Transfer::to);
    if (change.state == XCB_PROPERTY_DELETE && transfer != transfers_.end())
        sendPiece(transfer);
}

/// The piece after the last one is empty and says that there are no more.
void X11SelectionTransfers::sendPiece(Place transfer)
{
    const auto piece = std::string_view(transfer->bytes).substr(transfer->sent, pieceSize);
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, transfer->to.window,
        transfer->to.property, transfer->type, 8, static_cast<std::uint32_t>(piece.size()),
        piece.data());
    xcb_flush(connection_.get());
    transfer->sent += piece.size();
    transfer->isAlive = true;
    if (piece.empty())
        end(transfer);
}

void X11SelectionTransfers::endThoseOf(xcb_window_t window)
{
    for (auto transfer = transfers_.begin(); transfer != transfers_.end();) {
        const auto present = transfer++;
        if (present->to.window == window)
            end(present);
    }
}

void X11SelectionTransfers::endSilent()
{
    for (auto transfer = transfers_.begin(); transfer != transfers_.end();) {
        const auto present = transfer++;
        if (!std::exchange(present->isAlive, false))
            end(present);
    }
}

void X11SelectionTransfers::end(Place transfer)
{
    const auto window = transfer->to.window;
    transfers_.erase(transfer);
    const bool hasOthers = std::ranges::any_of(
        transfers_, [&](const Transfer& other) { return other.to.window == window; });
    if (!hasOthers)
        connection_.stopListeningTo(window, recipientEvents);
    if (transfers_.empty())
        silence_.stop();
}

} // namespace brindlex
