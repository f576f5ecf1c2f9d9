#include "platform/linux/pasteboard/X11SelectionRead.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace brindlex {
namespace {

constexpr std::size_t unit = sizeof(std::uint32_t);

std::string_view bytesOf(const xcb_get_property_reply_t& property)
{
    return {static_cast<const char*>(xcb_get_property_value(&property)),
        static_cast<std::size_t>(xcb_get_property_value_length(&property))};
}

/// How much the owner says that it will send at least.
std::size_t announcedSize(std::string_view bytes)
{
    std::uint32_t size = 0;
    if (bytes.size() >= sizeof(size))
        std::memcpy(&size, bytes.data(), sizeof(size));
    return size;
}

} // namespace

X11SelectionRead::X11SelectionRead(X11Connection& connection, X11RequestorWindows& windows,
    const Request& request, const PasteboardLimits& limits, Handler handler)
    : connection_(connection), windows_(windows), request_(request), limits_(limits),
      handler_(std::move(handler)), window_(windows.take()),
      property_(connection.atom("BRINDLEX_SELECTION")),
      events_(
          connection.observeEvents([this](const xcb_generic_event_t& event) { receive(event); }))
{
    auto* const server = connection_.get();
    const auto& parameters = request_.parameters;
    if (parameters.empty())
        xcb_delete_property(server, window_, property_);
    else
        xcb_change_property(server, XCB_PROP_MODE_REPLACE, window_, property_, XCB_ATOM_ATOM, 32,
            static_cast<std::uint32_t>(parameters.size()), parameters.data());
    xcb_convert_selection(
        server, window_, request_.selection, request_.target, property_, request_.time);
    xcb_flush(server);

    silence_.setSingleShot(true);
    silence_.setInterval(limits_.silence);
    silence_.callOnTimeout([this] { finish(SelectionProblem::silent, false); });
    silence_.start();
}

X11SelectionRead::~X11SelectionRead() { windows_.giveBack(window_, isOwnerDone_); }

void X11SelectionRead::receive(const xcb_generic_event_t& event)
{
    const auto kind = event.response_type & 0x7F;
    if (kind == XCB_SELECTION_NOTIFY && !isReceiving_) {
        const auto& notice = reinterpret_cast<const xcb_selection_notify_event_t&>(event);
        if (notice.requestor == window_)
            takeNotice(notice);
    } else if (kind == XCB_PROPERTY_NOTIFY && isReceiving_) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.window == window_ && change.atom == property_
            && change.state == XCB_PROPERTY_NEW_VALUE)
            takePiece();
    }
}

/// All that the property holds up to one unit more than may be taken; a property that was read to
/// its end is gone then, which for a piece requests the next one.
X11Message<xcb_get_property_reply_t> X11SelectionRead::property() const
{
    const auto length = static_cast<std::uint32_t>(limits_.bytes / unit + 1);
    return X11Message<xcb_get_property_reply_t>(xcb_get_property_reply(connection_.get(),
        xcb_get_property(
            connection_.get(), true, window_, property_, XCB_GET_PROPERTY_TYPE_ANY, 0, length),
        nullptr));
}

void X11SelectionRead::takeNotice(const xcb_selection_notify_event_t& notice)
{
    if (notice.property != property_)
        return finish(SelectionProblem::refused, true);
    const auto property = this->property();
    if (!property || property->type == XCB_ATOM_NONE)
        return finish(SelectionProblem::refused, true);
    const auto bytes = bytesOf(*property);
    if (property->type != connection_.atom("INCR")) {
        if (property->bytes_after > 0 || bytes.size() > limits_.bytes)
            return finish(SelectionProblem::tooLarge, true);
        return finish(SelectionContent{property->type, property->format, std::string(bytes)}, true);
    }
    if (announcedSize(bytes) > limits_.bytes)
        return finish(SelectionProblem::tooLarge, false);
    content_.bytes.reserve(announcedSize(bytes));
    isReceiving_ = true;
    silence_.start();
    xcb_flush(connection_.get());
}

void X11SelectionRead::takePiece()
{
    const auto property = this->property();
    if (!property || property->type == XCB_ATOM_NONE)
        return;
    const auto piece = bytesOf(*property);
    content_.type = property->type;
    content_.format = property->format;
    if (piece.empty())
        return finish(std::move(content_), true);
    if (property->bytes_after > 0 || piece.size() > limits_.bytes - content_.bytes.size())
        return finish(SelectionProblem::tooLarge, false);
    content_.bytes += piece;
    silence_.start();
    xcb_flush(connection_.get());
}

/// The last that is done here.
void X11SelectionRead::finish(Outcome outcome, bool isOwnerDone)
{
    isOwnerDone_ = isOwnerDone;
    silence_.stop();
    events_.reset();
    const auto handler = std::exchange(handler_, nullptr);
    handler(std::move(outcome));
}

} // namespace brindlex
