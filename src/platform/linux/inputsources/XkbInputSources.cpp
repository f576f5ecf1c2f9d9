#include "platform/linux/inputsources/XkbInputSources.h"

#include "foundation/Text.h"
#include "platform/linux/x11/X11Properties.h"
#include "platform/linux/x11/XkbProtocol.h"

#include <algorithm>

namespace brindlex {
namespace {

constexpr auto rulesProperty = "_XKB_RULES_NAMES";
constexpr std::uint32_t rulesLimit = 4096;
constexpr std::size_t groupLimit = 4;

/// The property holds rules, model, layouts, variants and options, each with its end.
std::vector<XkbLayout> layoutsOf(const std::string& rulesNames)
{
    auto fields = split(rulesNames, '\0');
    fields.resize(std::max<std::size_t>(fields.size(), 4));
    const auto layouts = split(fields[2], ',');
    const auto variants = split(fields[3], ',');
    std::vector<XkbLayout> result;
    for (std::size_t group = 0; group < std::min(layouts.size(), groupLimit); ++group)
        result.push_back({wellFormed(layouts[group]),
            group < variants.size() ? wellFormed(variants[group]) : std::string()});
    if (result == std::vector{XkbLayout{}})
        return {};
    return result;
}

} // namespace

XkbInputSources::XkbInputSources(X11Connection& connection, XkbRegistry& registry)
    : connection_(connection), registry_(registry)
{
    const auto firstEvent = connection_.isAlive() ? useXkb(connection_.get()) : std::nullopt;
    hasExtension_ = firstEvent.has_value();
    if (!hasExtension_)
        return;
    firstEvent_ = *firstEvent;
    listen();
    readGroup();
}

bool XkbInputSources::isUsable() const { return hasExtension_ && connection_.isAlive(); }

std::optional<std::string> XkbInputSources::current()
{
    const auto& all = sources();
    const auto index = static_cast<std::size_t>(group_);
    if (!isUsable() || index >= all.size())
        return {};
    return all[index].id;
}

const std::vector<InputSource>& XkbInputSources::sources()
{
    if (sources_)
        return *sources_;
    sources_.emplace();
    const auto names = registry_.names(layouts());
    for (std::size_t group = 0; group < names.size(); ++group) {
        const auto id = xkbSourceID(layouts()[group], names[group].language);
        const auto before = std::count(layouts().begin(),
            layouts().begin() + static_cast<std::ptrdiff_t>(group), layouts()[group]);
        if (before == 0) {
            sources_->push_back({id, names[group].name});
        } else {
            const auto number = std::to_string(before + 1);
            sources_->push_back({id + "#" + number, names[group].name + " " + number});
        }
    }
    return *sources_;
}

SelectionStatus XkbInputSources::select(const std::string& id)
{
    if (!isUsable())
        return SelectionStatus::notConnected;
    const auto& all = sources();
    const auto found = std::find_if(all.begin(), all.end(),
        [&](const InputSource& source) { return isSameSource(source.id, id); });
    if (found == all.end())
        return SelectionStatus::unknownSource;
    if (!lockGroup(static_cast<int>(found - all.begin())))
        return isUsable() ? SelectionStatus::refused : SelectionStatus::notConnected;
    return SelectionStatus::done;
}

const std::vector<XkbLayout>& XkbInputSources::layouts()
{
    if (!layouts_)
        layouts_ = layoutsOf(
            X11PropertyRequest(connection_, connection_.root(), rulesProperty, rulesLimit)
                .bytes()
                .value_or(""));
    return *layouts_;
}

bool XkbInputSources::lockGroup(int group)
{
    xcb_xkb_latch_lock_state(connection_.get(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, true,
        static_cast<std::uint8_t>(group), 0, false, 0);
    readGroup();
    return group_ == group;
}

void XkbInputSources::listen()
{
    constexpr std::uint16_t kinds
        = XCB_XKB_EVENT_TYPE_STATE_NOTIFY | XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY;
    xcb_xkb_select_events_details_t details{};
    details.affectState = XCB_XKB_STATE_PART_GROUP_STATE;
    details.stateDetails = XCB_XKB_STATE_PART_GROUP_STATE;
    details.affectNewKeyboard = XCB_XKB_NKN_DETAIL_KEYCODES;
    details.newKeyboardDetails = XCB_XKB_NKN_DETAIL_KEYCODES;
    xcb_xkb_select_events_aux(
        connection_.get(), XCB_XKB_ID_USE_CORE_KBD, kinds, 0, 0, 0, 0, &details);
    connection_.listenToRoot(XCB_EVENT_MASK_PROPERTY_CHANGE);
    events_
        = connection_.observeEvents([this](const xcb_generic_event_t& event) { handle(event); });
}

void XkbInputSources::handle(const xcb_generic_event_t& event)
{
    const auto kind = static_cast<std::uint8_t>(event.response_type & 0x7f);
    if (kind == XCB_PROPERTY_NOTIFY) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.window != connection_.root() || change.atom != connection_.atom(rulesProperty))
            return;
        layouts_.reset();
        sources_.reset();
        readGroup();
        notify();
    } else if (kind == firstEvent_) {
        // What the event carries may be older than a selection made since.
        readGroup();
        notify();
    }
}

void XkbInputSources::readGroup()
{
    const X11Message<xcb_xkb_get_state_reply_t> state(xcb_xkb_get_state_reply(
        connection_.get(), xcb_xkb_get_state(connection_.get(), XCB_XKB_ID_USE_CORE_KBD), nullptr));
    if (state)
        group_ = state->group;
}

} // namespace brindlex
