#include "platform/linux/input/X11InputEvent.h"

#include "platform/linux/input/X11Modifiers.h"
#include "platform/linux/x11/X11FixedPoint.h"

#include <cmath>
#include <xcb/xinput.h>

namespace brindlex {
namespace {

using Kind = PressLedger::Kind;
using Read = std::optional<X11InputEvent::Any>;

template <typename Event>
const Event& as(const xcb_generic_event_t& event)
{
    return reinterpret_cast<const Event&>(event);
}

Read readButton(const xcb_generic_event_t& event, bool isPress)
{
    const auto& input = as<xcb_input_button_press_event_t>(event);
    // The cursor stands on whole pixels.
    return X11InputEvent::Button{input.deviceid, static_cast<std::uint8_t>(input.detail), isPress,
        {std::floor(number(input.root_x)), std::floor(number(input.root_y))},
        flagsOfModifiers(input.mods.effective)};
}

Read readKey(const xcb_generic_event_t& event, bool isPress)
{
    const auto& input = as<xcb_input_key_press_event_t>(event);
    const bool isRepeat = isPress && (input.flags & XCB_INPUT_KEY_EVENT_FLAGS_KEY_REPEAT) != 0;
    return X11InputEvent::Key{input.deviceid, static_cast<std::uint8_t>(input.detail), isPress,
        isRepeat, flagsOfModifiers(input.mods.effective)};
}

Read readPlace(const xcb_generic_event_t& event)
{
    const auto& input = as<xcb_input_motion_event_t>(event);
    return X11InputEvent::Place{input.deviceid, {number(input.root_x), number(input.root_y)}};
}

Read readMotion(const xcb_generic_event_t& event)
{
    const auto& input = as<xcb_input_raw_button_press_event_t>(event);
    const auto* axes = xcb_input_raw_button_press_valuator_mask(&input);
    const auto* values = xcb_input_raw_button_press_axisvalues(&input);
    constexpr std::uint32_t xAxis = 1;
    constexpr std::uint32_t yAxis = 2;
    if (input.valuators_len == 0 || (axes[0] & (xAxis | yAxis)) == 0)
        return {};
    X11InputEvent::Motion motion{input.sourceid, 0, 0};
    if (axes[0] & xAxis)
        motion.x = number(*values++);
    if (axes[0] & yAxis)
        motion.y = number(*values);
    return motion;
}

Read readFreeRelease(const xcb_generic_event_t& event, Kind kind)
{
    const auto& input = as<xcb_input_raw_button_press_event_t>(event);
    return X11InputEvent::FreeRelease{
        input.sourceid, kind, static_cast<std::uint8_t>(input.detail)};
}

Read readHierarchy(const xcb_generic_event_t& event)
{
    const auto& change = as<xcb_input_hierarchy_event_t>(event);
    constexpr std::uint32_t gone
        = XCB_INPUT_HIERARCHY_MASK_SLAVE_REMOVED | XCB_INPUT_HIERARCHY_MASK_DEVICE_DISABLED;
    constexpr std::uint32_t come = XCB_INPUT_HIERARCHY_MASK_SLAVE_ADDED
        | XCB_INPUT_HIERARCHY_MASK_DEVICE_ENABLED | XCB_INPUT_HIERARCHY_MASK_SLAVE_ATTACHED
        | XCB_INPUT_HIERARCHY_MASK_SLAVE_DETACHED;
    if ((change.flags & (gone | come)) == 0)
        return {};
    X11InputEvent::DevicesChanged changed;
    auto infos = xcb_input_hierarchy_infos_iterator(&change);
    for (; infos.rem > 0; xcb_input_hierarchy_info_next(&infos))
        if (infos.data->flags & gone)
            changed.gone.push_back(infos.data->deviceid);
    return changed;
}

} // namespace

std::optional<X11InputEvent::Any> readInputEvent(
    const xcb_generic_event_t& event, std::uint8_t opcode)
{
    const auto& generic = as<xcb_ge_generic_event_t>(event);
    if ((event.response_type & 0x7F) != XCB_GE_GENERIC || generic.extension != opcode)
        return {};
    switch (generic.event_type) {
    case XCB_INPUT_BUTTON_PRESS:
        return readButton(event, true);
    case XCB_INPUT_BUTTON_RELEASE:
        return readButton(event, false);
    case XCB_INPUT_KEY_PRESS:
        return readKey(event, true);
    case XCB_INPUT_KEY_RELEASE:
        return readKey(event, false);
    case XCB_INPUT_MOTION:
        return readPlace(event);
    case XCB_INPUT_RAW_MOTION:
        return readMotion(event);
    case XCB_INPUT_RAW_BUTTON_RELEASE:
        return readFreeRelease(event, Kind::button);
    case XCB_INPUT_RAW_KEY_RELEASE:
        return readFreeRelease(event, Kind::key);
    case XCB_INPUT_HIERARCHY:
        return readHierarchy(event);
    default:
        return {};
    }
}

} // namespace brindlex
