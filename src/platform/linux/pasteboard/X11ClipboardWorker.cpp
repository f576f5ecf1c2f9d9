#include "platform/linux/pasteboard/X11ClipboardWorker.h"

#include "log/Log.h"

#include <chrono>
#include <utility>

namespace brindlex {
namespace {

/// Between two lines of the log on applications whose copies cannot be read.
constexpr std::chrono::seconds betweenLines{10};

bool isEmpty(const PasteboardState& state)
{
    return !state.text && state.filePaths.empty() && state.data.empty();
}

xcb_window_t hiddenWindow(X11Connection& connection)
{
    const auto window = xcb_generate_id(connection.get());
    xcb_create_window(connection.get(), XCB_COPY_FROM_PARENT, window, connection.root(), -1, -1, 1,
        1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    return window;
}

/// The number of the extension's first event; it is not there on a server without it.
std::uint8_t followOwnersOf(X11Connection& connection, xcb_window_t window, xcb_atom_t selection)
{
    auto* const server = connection.get();
    const auto* const extension = xcb_get_extension_data(server, &xcb_xfixes_id);
    if (!extension || !extension->present)
        return 0;
    const X11Message<xcb_xfixes_query_version_reply_t> version(
        xcb_xfixes_query_version_reply(server, xcb_xfixes_query_version(server, 5, 0), nullptr));
    xcb_xfixes_select_selection_input(server, window, selection,
        XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER
            | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
            | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    xcb_flush(server);
    return extension->first_event;
}

/// Who copies from the owner's end on stays the owner, also in its very millisecond: a selection is
/// taken over by whoever says the time of the last change or a later one.
xcb_timestamp_t momentBeforeEnd(const xcb_xfixes_selection_notify_event_t& end)
{
    return end.timestamp == end.selection_timestamp ? end.timestamp : end.timestamp - 1;
}

xcb_window_t ownerOf(X11Connection& connection, xcb_atom_t selection)
{
    const X11Message<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection.get(), xcb_get_selection_owner(connection.get(), selection), nullptr));
    return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
}

} // namespace

X11ClipboardWorker::X11ClipboardWorker(const std::string& display, const PasteboardLimits& limits,
    const std::atomic<bool>& isObserved, Handler handler)
    : limits_(limits), isObserved_(isObserved), handler_(std::move(handler)), connection_(display),
      clipboard_(connection_.atom("CLIPBOARD")), window_(hiddenWindow(connection_)),
      firstXFixesEvent_(followOwnersOf(connection_, window_, clipboard_)),
      offer_(connection_, window_, limits),
      events_(
          connection_.observeEvents([this](const xcb_generic_event_t& event) { receive(event); }))
{
    handoverDeadline_.setSingleShot(true);
    handoverDeadline_.callOnTimeout([this] { endHandover(); });
    // From here on the server says who owns the clipboard.
    ownerOf(connection_, clipboard_);
}

void X11ClipboardWorker::write(std::shared_ptr<const PasteboardState> state)
{
    ++writes_;
    read_.reset();
    own_ = isEmpty(*state) ? nullptr : std::move(state);
    state_ = own_;
    const auto owner = own_ ? window_ : xcb_window_t{XCB_WINDOW_NONE};
    pendingWrite_
        = xcb_set_selection_owner(connection_.get(), owner, clipboard_, XCB_CURRENT_TIME).sequence;
    xcb_flush(connection_.get());
}

void X11ClipboardWorker::shareWithMouse()
{
    // While a write is on its way the server is about to say that it was done.
    if (!own_ || !(isOwner_ || pendingWrite_))
        return;
    auto* const server = connection_.get();
    xcb_xfixes_select_selection_input(
        server, window_, XCB_ATOM_PRIMARY, XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER);
    xcb_set_selection_owner(server, window_, XCB_ATOM_PRIMARY, XCB_CURRENT_TIME);
    ownerOf(connection_, XCB_ATOM_PRIMARY);
}

/// With the time at which it began: who has selected something since keeps that.
void X11ClipboardWorker::endSharing()
{
    if (const auto since = std::exchange(sharedSince_, std::nullopt))
        xcb_set_selection_owner(connection_.get(), XCB_WINDOW_NONE, XCB_ATOM_PRIMARY, *since);
}

void X11ClipboardWorker::receive(const xcb_generic_event_t& event)
{
    const auto kind = event.response_type & 0x7F;
    if (firstXFixesEvent_ == 0 || kind != firstXFixesEvent_ + XCB_XFIXES_SELECTION_NOTIFY)
        return;
    const auto& change = reinterpret_cast<const xcb_xfixes_selection_notify_event_t&>(event);
    if (change.selection == XCB_ATOM_PRIMARY)
        sharedSince_
            = change.owner == window_ ? std::optional(change.selection_timestamp) : std::nullopt;
    if (change.selection != clipboard_ || isOutOfDate(event))
        return;
    const bool isDoneWrite = pendingWrite_.has_value();
    pendingWrite_.reset();
    if (change.owner == window_)
        becomeOwner(change.selection_timestamp);
    else if (isDoneWrite)
        becomeOther();
    else
        followOwner(change);
}

/// Whether it tells of the time before the program's last write.
bool X11ClipboardWorker::isOutOfDate(const xcb_generic_event_t& event) const
{
    return pendingWrite_ && static_cast<std::int32_t>(event.full_sequence - *pendingWrite_) < 0;
}

void X11ClipboardWorker::becomeOwner(xcb_timestamp_t since)
{
    read_.reset();
    isOwner_ = true;
    state_ = own_;
    offer_.offer(own_);
    offer_.setBeginning(since);
}

void X11ClipboardWorker::becomeOther()
{
    read_.reset();
    isOwner_ = false;
    offer_.offer(nullptr);
    endSharing();
}

void X11ClipboardWorker::followOwner(const xcb_xfixes_selection_notify_event_t& change)
{
    becomeOther();
    const auto before = std::exchange(state_, nullptr);
    if (change.owner != XCB_WINDOW_NONE) {
        if (isObserved_)
            return read(change.selection_timestamp);
        return report({});
    }
    const bool hasEnded = change.subtype != XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER;
    if (!hasEnded || !isObserved_ || !before || isEmpty(*before))
        return report({});
    own_ = before;
    xcb_set_selection_owner(connection_.get(), window_, clipboard_, momentBeforeEnd(change));
    xcb_flush(connection_.get());
}

void X11ClipboardWorker::read(xcb_timestamp_t since)
{
    read_ = std::make_unique<X11PasteboardRead>(
        connection_, windows_, images_, since, limits_, [this](X11PasteboardRead::Outcome outcome) {
            read_.reset();
            if (!outcome.problem.empty())
                log(outcome.problem);
            report(std::move(outcome.state));
        });
}

void X11ClipboardWorker::report(PasteboardState state)
{
    state_ = std::make_shared<const PasteboardState>(std::move(state));
    handler_(state_, writes_);
}

void X11ClipboardWorker::log(const std::string& problem)
{
    if (sinceLog_.isValid()
        && !sinceLog_.hasExpired(std::chrono::milliseconds(betweenLines).count()))
        return;
    sinceLog_.start();
    Log::warn("X11Pasteboard: what was copied cannot be read: " + problem, logCategory::clipboard);
}

void X11ClipboardWorker::end(std::function<void()> ended)
{
    ended_ = std::move(ended);
    read_.reset();
    const auto manager = connection_.atom("CLIPBOARD_MANAGER");
    if (!isOwner_ || ownerOf(connection_, manager) == XCB_WINDOW_NONE)
        return endHandover();
    handoverDeadline_.start(limits_.handover);
    handover_ = std::make_unique<X11SelectionRead>(connection_, windows_,
        X11SelectionRead::Request{.selection = manager,
            .target = connection_.atom("SAVE_TARGETS"),
            .parameters = offer_.targets()},
        limits_, [this](const X11SelectionRead::Outcome&) { endHandover(); });
}

void X11ClipboardWorker::endHandover()
{
    handoverDeadline_.stop();
    handover_.reset();
    if (const auto ended = std::exchange(ended_, nullptr))
        ended();
}

} // namespace brindlex
