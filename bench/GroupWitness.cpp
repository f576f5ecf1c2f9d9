#include "GroupWitness.h"

#include "platform/linux/x11/XkbProtocol.h"

#include <poll.h>

#include <cstdlib>
#include <optional>

namespace brindlex {
namespace {

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

} // namespace

GroupWitness::GroupWitness(xcb_window_t window, const std::string& property)
    : connection_(xcb_connect(nullptr, nullptr))
{
    const auto name = xcb_intern_atom(
        connection_, 0, static_cast<std::uint16_t>(property.size()), property.c_str());
    auto* reply = xcb_intern_atom_reply(connection_, name, nullptr);
    property_ = reply->atom;
    std::free(reply);
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection_, window, XCB_CW_EVENT_MASK, &mask);
    std::free(xcb_xkb_use_extension_reply(
        connection_, xcb_xkb_use_extension(connection_, 1, 0), nullptr));
    xkbEvent_ = xcb_get_extension_data(connection_, &xcb_xkb_id)->first_event;
    xcb_xkb_select_events_details_t details{};
    details.affectState = XCB_XKB_STATE_PART_GROUP_STATE;
    details.stateDetails = XCB_XKB_STATE_PART_GROUP_STATE;
    xcb_xkb_select_events_aux(connection_, XCB_XKB_ID_USE_CORE_KBD, XCB_XKB_EVENT_TYPE_STATE_NOTIFY,
        0, 0, 0, 0, &details);
    xcb_flush(connection_);
}

GroupWitness::~GroupWitness() { xcb_disconnect(connection_); }

double GroupWitness::nextSwitch(const std::function<bool()>& counts, std::chrono::milliseconds time)
{
    std::optional<Clock::time_point> changed;
    const auto start = Clock::now();
    pollfd socket{xcb_get_file_descriptor(connection_), POLLIN, 0};
    while (Clock::now() - start < time) {
        while (auto* event = xcb_poll_for_event(connection_)) {
            const auto type = event->response_type & 0x7F;
            const bool isProperty = type == XCB_PROPERTY_NOTIFY
                && reinterpret_cast<xcb_property_notify_event_t*>(event)->atom == property_;
            std::free(event);
            if (isProperty && !changed && counts())
                changed = Clock::now();
            else if (type == xkbEvent_)
                return changed ? millisecondsSince(*changed) : 0;
        }
        ::poll(&socket, 1, 10);
    }
    return -1;
}

} // namespace brindlex
