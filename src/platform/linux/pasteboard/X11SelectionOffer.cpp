#include "platform/linux/pasteboard/X11SelectionOffer.h"

#include "platform/linux/pasteboard/SelectionForms.h"

#include <cstring>
#include <utility>

namespace brindlex {
namespace {

/// Requests for several targets at once have some dozens of them, two numbers each.
constexpr std::uint32_t mostNumbers = 8192;

} // namespace

X11SelectionOffer::X11SelectionOffer(
    X11Connection& connection, xcb_window_t owner, const PasteboardLimits& limits)
    : connection_(connection), owner_(owner), transfers_(connection, limits.silence),
      events_(connection.observeEvents([this](const xcb_generic_event_t& event) {
          const auto& request = reinterpret_cast<const xcb_selection_request_event_t&>(event);
          if ((event.response_type & 0x7F) == XCB_SELECTION_REQUEST && request.owner == owner_)
              answer(request);
      }))
{
}

void X11SelectionOffer::offer(std::shared_ptr<const PasteboardState> state)
{
    state_ = std::move(state);
    targets_.clear();
    names_.clear();
    if (!state_)
        return;
    for (const auto& name : selectionTargetsOf(*state_)) {
        targets_.push_back(connection_.atom(name));
        names_.emplace(targets_.back(), name);
    }
}

void X11SelectionOffer::answer(const xcb_selection_request_event_t& request)
{
    xcb_selection_notify_event_t notice{};
    notice.response_type = XCB_SELECTION_NOTIFY;
    notice.time = request.time;
    notice.requestor = request.requestor;
    notice.selection = request.selection;
    notice.target = request.target;
    // Old applications name no property and mean one of the target's name.
    const auto property = request.property != XCB_ATOM_NONE ? request.property : request.target;
    if (state_ && give({request.requestor, property}, request.target))
        notice.property = property;
    xcb_send_event(connection_.get(), false, request.requestor, XCB_EVENT_MASK_NO_EVENT,
        reinterpret_cast<const char*>(&notice));
    xcb_flush(connection_.get());
}

/// Whether the target could be given.
bool X11SelectionOffer::give(const X11Recipient& to, xcb_atom_t target)
{
    if (target == connection_.atom("TARGETS"))
        return giveNumbers(to, XCB_ATOM_ATOM, allTargets());
    if (target == connection_.atom("TIMESTAMP"))
        return giveNumbers(to, XCB_ATOM_INTEGER, {beginning_});
    if (target == connection_.atom("SAVE_TARGETS"))
        return giveNumbers(to, connection_.atom("NULL"), {});
    if (target == connection_.atom("MULTIPLE"))
        return giveSeveral(to);
    const auto name = names_.find(target);
    if (name == names_.end())
        return false;
    auto bytes = selectionForm(*state_, name->second);
    return bytes && transfers_.send(to, target, std::move(*bytes));
}

std::vector<xcb_atom_t> X11SelectionOffer::allTargets()
{
    std::vector<xcb_atom_t> all;
    for (const auto* const name : {"TARGETS", "TIMESTAMP", "MULTIPLE", "SAVE_TARGETS"})
        all.push_back(connection_.atom(name));
    all.insert(all.end(), targets_.begin(), targets_.end());
    return all;
}

/// The property has pairs of a target and the property to put it into, which becomes none for what
/// is not given.
bool X11SelectionOffer::giveSeveral(const X11Recipient& to)
{
    auto pairs = pairsOf(to);
    if (pairs.empty())
        return false;
    for (std::size_t index = 0; index + 1 < pairs.size(); index += 2) {
        const auto target = pairs[index];
        auto& property = pairs[index + 1];
        const bool isGiven = property != XCB_ATOM_NONE && target != connection_.atom("MULTIPLE")
            && give({to.window, property}, target);
        if (!isGiven)
            property = XCB_ATOM_NONE;
    }
    return giveNumbers(to, connection_.atom("ATOM_PAIR"), pairs);
}

std::vector<std::uint32_t> X11SelectionOffer::pairsOf(const X11Recipient& to)
{
    auto* const server = connection_.get();
    const X11Message<xcb_get_property_reply_t> reply(xcb_get_property_reply(server,
        xcb_get_property(
            server, false, to.window, to.property, XCB_GET_PROPERTY_TYPE_ANY, 0, mostNumbers),
        nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto length = static_cast<std::size_t>(xcb_get_property_value_length(reply.get()));
    std::vector<std::uint32_t> pairs(length / sizeof(std::uint32_t));
    if (!pairs.empty())
        std::memcpy(pairs.data(), xcb_get_property_value(reply.get()),
            pairs.size() * sizeof(std::uint32_t));
    return pairs;
}

bool X11SelectionOffer::giveNumbers(
    const X11Recipient& to, xcb_atom_t type, const std::vector<std::uint32_t>& numbers)
{
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, to.window, to.property, type, 32,
        static_cast<std::uint32_t>(numbers.size()), numbers.data());
    return true;
}

} // namespace brindlex
