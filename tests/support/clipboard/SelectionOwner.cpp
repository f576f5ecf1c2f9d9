#include "support/clipboard/SelectionOwner.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace brindlex {
namespace {

xcb_window_t hiddenWindow(const XConnection& server)
{
    const auto window = xcb_generate_id(server.get());
    xcb_create_window(server.get(), XCB_COPY_FROM_PARENT, window, server.root(), 0, 0, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    return window;
}

} // namespace

SelectionOwner::SelectionOwner(Offer offer)
    : offer_(std::move(offer)), window_(hiddenWindow(server_)), wake_(eventfd(0, 0)),
      thread_([this] { run(); })
{
    own(window_);
}

SelectionOwner::~SelectionOwner()
{
    isEnding_ = true;
    eventfd_write(wake_, 1);
    thread_.join();
    close(wake_);
}

void SelectionOwner::clear() { own(XCB_WINDOW_NONE); }

void SelectionOwner::copyAgain() { own(window_); }

std::vector<std::string> SelectionOwner::requested() const
{
    const std::lock_guard lock(mutex_);
    return requested_;
}

/// By a connection of the calling thread's: replies are waited for there.
void SelectionOwner::own(xcb_window_t window)
{
    xcb_set_selection_owner(
        server_.get(), window, server_.atom(offer_.selection), XCB_CURRENT_TIME);
    server_.sync();
    // What came in during the wait is handed out by the thread.
    eventfd_write(wake_, 1);
}

void SelectionOwner::run()
{
    while (!isEnding_) {
        std::array<pollfd, 2> awaited{
            pollfd{xcb_get_file_descriptor(server_.get()), POLLIN, 0}, pollfd{wake_, POLLIN, 0}};
        poll(awaited.data(), awaited.size(), -1);
        eventfd_t count = 0;
        if ((awaited[1].revents & POLLIN) != 0)
            eventfd_read(wake_, &count);
        while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(server_.get())})
            receive(*event);
        xcb_flush(server_.get());
        if (!server_.isOpen())
            return;
    }
}

void SelectionOwner::receive(const xcb_generic_event_t& event)
{
    const auto kind = event.response_type & 0x7F;
    if (kind == XCB_PROPERTY_NOTIFY) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.state == XCB_PROPERTY_DELETE && change.window == recipient_)
            sendPiece(change.window, change.atom);
    }
    if (kind != XCB_SELECTION_REQUEST)
        return;
    const auto& request = reinterpret_cast<const xcb_selection_request_event_t&>(event);
    const auto target = nameOf(request.target);
    {
        const std::lock_guard lock(mutex_);
        requested_.push_back(target);
    }
    if (isSilent(target))
        return;
    xcb_selection_notify_event_t notice{};
    notice.response_type = XCB_SELECTION_NOTIFY;
    notice.time = request.time;
    notice.requestor = request.requestor;
    notice.selection = request.selection;
    notice.target = request.target;
    notice.property = give(request) ? request.property : xcb_atom_t{XCB_ATOM_NONE};
    xcb_send_event(server_.get(), false, request.requestor, XCB_EVENT_MASK_NO_EVENT,
        reinterpret_cast<const char*>(&notice));
}

bool SelectionOwner::isSilent(const std::string& target) const
{
    return offer_.manners == Manners::silent
        || (offer_.manners == Manners::silentAfterTargets && target != "TARGETS");
}

bool SelectionOwner::give(const xcb_selection_request_event_t& request)
{
    if (nameOf(request.target) == "TARGETS") {
        std::vector<xcb_atom_t> targets;
        if (offer_.manners == Manners::confused)
            targets = {0, 0xFFFF'FFF0, window_};
        for (const auto& [target, bytes] : offer_.contents)
            targets.push_back(server_.atom(target));
        xcb_change_property(server_.get(), XCB_PROP_MODE_REPLACE, request.requestor,
            request.property, XCB_ATOM_ATOM, 32, static_cast<std::uint32_t>(targets.size()),
            targets.data());
        return true;
    }
    const auto found = offer_.contents.find(nameOf(request.target));
    if (offer_.manners == Manners::refusing || found == offer_.contents.end())
        return false;
    const auto& bytes = found->second;
    const bool inPieces = offer_.manners == Manners::silentInPieces
        || offer_.manners == Manners::endless || offer_.manners == Manners::boastful
        || bytes.size() > offer_.piece;
    if (inPieces)
        beginPieces(request, bytes);
    else
        xcb_change_property(server_.get(), XCB_PROP_MODE_REPLACE, request.requestor,
            request.property, request.target, 8, static_cast<std::uint32_t>(bytes.size()),
            bytes.data());
    return true;
}

void SelectionOwner::beginPieces(
    const xcb_selection_request_event_t& request, const std::string& bytes)
{
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(server_.get(), request.requestor, XCB_CW_EVENT_MASK, &mask);
    const auto size = offer_.manners == Manners::boastful
        ? std::numeric_limits<std::uint32_t>::max()
        : static_cast<std::uint32_t>(bytes.size());
    xcb_change_property(server_.get(), XCB_PROP_MODE_REPLACE, request.requestor, request.property,
        server_.atom("INCR"), 32, 1, &size);
    waiting_ = bytes;
    waitingType_ = request.target;
    recipient_ = request.requestor;
}

void SelectionOwner::sendPiece(xcb_window_t window, xcb_atom_t property)
{
    if (offer_.manners == Manners::silentInPieces && sentPieces_ > 0)
        return;
    const auto piece = waiting_.substr(0, offer_.piece);
    if (offer_.manners != Manners::endless)
        waiting_.erase(0, piece.size());
    xcb_change_property(server_.get(), XCB_PROP_MODE_REPLACE, window, property, waitingType_, 8,
        static_cast<std::uint32_t>(piece.size()), piece.data());
    ++sentPieces_;
    if (piece.empty())
        recipient_ = XCB_WINDOW_NONE;
}

std::string SelectionOwner::nameOf(xcb_atom_t atom) const
{
    const XReply<xcb_get_atom_name_reply_t> reply(
        xcb_get_atom_name_reply(server_.get(), xcb_get_atom_name(server_.get(), atom), nullptr));
    if (!reply)
        return {};
    return {xcb_get_atom_name_name(reply.get()),
        static_cast<std::size_t>(xcb_get_atom_name_name_length(reply.get()))};
}

} // namespace brindlex
