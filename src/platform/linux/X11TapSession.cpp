#include "platform/linux/X11TapSession.h"

#include "platform/linux/VirtualKeyCodes.h"
#include "platform/linux/X11Buttons.h"
#include "platform/linux/X11KeyboardMap.h"
#include "platform/linux/X11Modifiers.h"
#include "platform/linux/XkbProtocol.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

namespace brindlex {
namespace {

using Kind = PressLedger::Kind;

double number(xcb_input_fp3232_t value) { return value.integral + value.frac / 4294967296.0; }

double number(xcb_input_fp1616_t value) { return value / 65536.0; }

constexpr EventMask motions = eventMask(EventType::mouseMoved)
    | eventMask(EventType::leftMouseDragged) | eventMask(EventType::rightMouseDragged)
    | eventMask(EventType::otherMouseDragged);

template <typename Event>
const Event& as(const xcb_generic_event_t& event)
{
    return reinterpret_cast<const Event&>(event);
}

} // namespace

X11TapSession::X11TapSession(const std::string& display, TapChain& taps, Hooks hooks)
    : display_(display), taps_(taps), hooks_(std::move(hooks)), connection_(display),
      masters_(connection_.isAlive() ? tappableMasters(connection_) : std::nullopt),
      injection_(connection_)
{
    if (!isUsable())
        return;
    inputOpcode_ = xcb_get_extension_data(connection_.get(), &xcb_input_id)->major_opcode;
    makeHandle();
    selectEvents(false);
    findDevices();
    events_ = connection_.observeEvents([this](const xcb_generic_event_t& event) {
        receive(event);
        xcb_flush(connection_.get());
    });
    end_ = connection_.observeEnd([this] { hooks_.ended(); });
}

X11TapSession::~X11TapSession()
{
    // Devices go back first: what a hand still holds then stays held.
    grabs_.apply({}, devices_, true);
    injection_.releaseAll();
}

bool X11TapSession::apply(const TapDemand& demand)
{
    // What the user has made of the layout meanwhile reaches the keyboards before they go back.
    if (!demand.takesKeyboards && hasKeymapChanged_ && ledger_.isEmpty())
        copyKeymapToTaken();
    const bool isDone = grabs_.apply(demand, devices_, ledger_.isEmpty());
    selectKeymapChanges(demand.takesKeyboards || (!isDone && listensToKeymap_));
    if (demand.takesMice)
        injection_.takeCursor();
    listen();
    xcb_flush(connection_.get());
    waitsForRelease_ = !isDone || (listensToReleases_ && grabs_.isNothing());
    return isDone;
}

void X11TapSession::pressForHand(const std::vector<std::uint8_t>& keys)
{
    // The hand may let go at any moment: before the second look that is seen there, after it here.
    pressedForHand_.insert(keys.begin(), keys.end());
    listen();
    const auto held = keysHeldByHand(connection_, devices_);
    const auto isHeld = [](const std::vector<std::uint8_t>& byHand, std::uint8_t key) {
        return std::ranges::find(byHand, key) != byHand.end();
    };
    for (const auto key : keys)
        if (isHeld(held, key))
            injection_.play(Kind::key, key, true);
    const auto heldStill = keysHeldByHand(connection_, devices_);
    for (const auto key : keys) {
        if (isHeld(held, key) && !isHeld(heldStill, key))
            injection_.play(Kind::key, key, false);
        // What came through here is released through here.
        if (!isHeld(heldStill, key) || injection_.holds(Kind::key, key))
            pressedForHand_.erase(key);
    }
    listen();
}

X11CursorState X11TapSession::cursor()
{
    const X11Message<xcb_input_xi_query_pointer_reply_t> reply(
        xcb_input_xi_query_pointer_reply(connection_.get(),
            xcb_input_xi_query_pointer(
                connection_.get(), connection_.root(), masters_ ? masters_->pointer : 0),
            nullptr));
    if (!reply)
        return {};
    return {
        {number(reply->root_x), number(reply->root_y)}, flagsOfModifiers(reply->mods.effective)};
}

void X11TapSession::makeHandle()
{
    handle_ = xcb_generate_id(connection_.get());
    xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, handle_, connection_.root(), -1, -1,
        1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
}

bool X11TapSession::mayMissReleases() const
{
    return !grabs_.isNothing() || !injection_.holdsNothing() || !pressedForHand_.empty();
}

void X11TapSession::listen()
{
    if (listensToReleases_ != mayMissReleases())
        selectEvents(mayMissReleases());
}

void X11TapSession::selectEvents(bool toReleases)
{
    listensToReleases_ = toReleases;
    struct {
        xcb_input_event_mask_t hierarchyOf{XCB_INPUT_DEVICE_ALL, 1};
        std::uint32_t hierarchy = XCB_INPUT_XI_EVENT_MASK_HIERARCHY;
        xcb_input_event_mask_t releasesOf{XCB_INPUT_DEVICE_ALL_MASTER, 1};
        std::uint32_t releases = 0;
    } selection;
    if (toReleases)
        selection.releases
            = XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE | XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE;
    xcb_input_xi_select_events(connection_.get(), connection_.root(), 2, &selection.hierarchyOf);
}

void X11TapSession::selectKeymapChanges(bool isSelected)
{
    auto* const server = connection_.get();
    const auto* extension = xcb_get_extension_data(server, &xcb_xkb_id);
    if (isSelected == listensToKeymap_ || !extension || !extension->present)
        return;
    listensToKeymap_ = isSelected;
    hasKeymapChanged_ = false;
    keymapEvent_ = extension->first_event;
    xcb_discard_reply(server,
        xcb_xkb_use_extension(server, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION).sequence);
    constexpr std::uint16_t changes
        = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr std::uint16_t mapParts = 0xFF;
    xcb_xkb_select_events(server, XCB_XKB_ID_USE_CORE_KBD, changes, isSelected ? 0 : changes,
        isSelected ? changes : 0, mapParts, mapParts, nullptr);
}

void X11TapSession::copyKeymapToTaken()
{
    hasKeymapChanged_ = false;
    const auto source = playingKeyboard(connection_, *masters_);
    for (const auto& device : devices_)
        if (device.kind == X11InputDevice::Kind::keyboard && grabs_.isTaken(device.id))
            copyKeyboardMap(display_, source, device.id);
}

void X11TapSession::findDevices()
{
    // A device that is taken does not belong to the masters and is not found again.
    std::vector<X11InputDevice> devices;
    for (const auto& device : devices_)
        if (grabs_.isTaken(device.id))
            devices.push_back(device);
    for (const auto& device : tappableDevices(connection_, *masters_))
        if (std::ranges::find(devices, device.id, &X11InputDevice::id) == devices.end())
            devices.push_back(device);
    devices_ = std::move(devices);
}

void X11TapSession::receive(const xcb_generic_event_t& event)
{
    if (listensToKeymap_ && (event.response_type & 0x7F) == keymapEvent_)
        hasKeymapChanged_ = true;
    const auto& generic = as<xcb_ge_generic_event_t>(event);
    if ((event.response_type & 0x7F) != XCB_GE_GENERIC || generic.extension != inputOpcode_)
        return;
    switch (generic.event_type) {
    case XCB_INPUT_HIERARCHY:
        return receiveHierarchy(event);
    case XCB_INPUT_BUTTON_PRESS:
        return receiveButton(event, true);
    case XCB_INPUT_BUTTON_RELEASE:
        return receiveButton(event, false);
    case XCB_INPUT_KEY_PRESS:
        return receiveKey(event, true);
    case XCB_INPUT_KEY_RELEASE:
        return receiveKey(event, false);
    case XCB_INPUT_MOTION:
        return receiveMotion(event);
    case XCB_INPUT_RAW_MOTION:
        return receiveRawMotion(event);
    case XCB_INPUT_RAW_BUTTON_RELEASE:
        return receiveRawRelease(event, Kind::button);
    case XCB_INPUT_RAW_KEY_RELEASE:
        return receiveRawRelease(event, Kind::key);
    default:
        return;
    }
}

void X11TapSession::receiveHierarchy(const xcb_generic_event_t& event)
{
    const auto& change = as<xcb_input_hierarchy_event_t>(event);
    constexpr std::uint32_t gone
        = XCB_INPUT_HIERARCHY_MASK_SLAVE_REMOVED | XCB_INPUT_HIERARCHY_MASK_DEVICE_DISABLED;
    constexpr std::uint32_t come = XCB_INPUT_HIERARCHY_MASK_SLAVE_ADDED
        | XCB_INPUT_HIERARCHY_MASK_DEVICE_ENABLED | XCB_INPUT_HIERARCHY_MASK_SLAVE_ATTACHED
        | XCB_INPUT_HIERARCHY_MASK_SLAVE_DETACHED;
    if ((change.flags & (gone | come)) == 0)
        return;
    auto infos = xcb_input_hierarchy_infos_iterator(&change);
    for (; infos.rem > 0; xcb_input_hierarchy_info_next(&infos))
        if (infos.data->flags & gone)
            lostDevice(infos.data->deviceid);
    findDevices();
    hooks_.grabsMayChange();
}

void X11TapSession::lostDevice(std::uint16_t device)
{
    for (const auto& press : ledger_.forget(device))
        injection_.release(press.kind, static_cast<std::uint8_t>(press.code));
    grabs_.forget(device);
    remainders_.erase(device);
    heldButtons_.erase(device);
    std::erase_if(devices_, [&](const X11InputDevice& known) { return known.id == device; });
}

void X11TapSession::receiveButton(const xcb_generic_event_t& event, bool isPress)
{
    const auto& input = as<xcb_input_button_press_event_t>(event);
    const auto button = static_cast<std::uint8_t>(input.detail);
    if (isWheel(button)) {
        if (isPress)
            receiveWheel(button);
        return;
    }
    const auto buttonOfEvent = buttonNumber(button);
    const auto type = isPress ? downTypeOf(buttonOfEvent) : upTypeOf(buttonOfEvent);
    if (!grabs_.isTaken(input.deviceid) && isPress)
        injection_.takeCursor();
    if (isPress)
        heldButtons_[input.deviceid].insert(buttonOfEvent);
    else
        heldButtons_[input.deviceid].erase(buttonOfEvent);
    const auto verdict = offer(type, {{EventField::mouseEventButtonNumber, buttonOfEvent}});
    if (isPress)
        pressed(input.deviceid, Kind::button, button, verdict == EventVerdict::pass);
    else
        released(input.deviceid, Kind::button, button);
    hooks_.eventDone();
}

void X11TapSession::receiveWheel(std::uint8_t button)
{
    const std::int64_t vertical = button == wheelUp ? 1 : button == wheelDown ? -1 : 0;
    const std::int64_t horizontal = button == wheelLeft ? 1 : button == wheelRight ? -1 : 0;
    const auto verdict = offer(EventType::scrollWheel,
        {{EventField::scrollWheelEventDeltaAxis1, vertical},
            {EventField::scrollWheelEventDeltaAxis2, horizontal}});
    if (verdict == EventVerdict::pass)
        injection_.turnWheel(button);
    hooks_.eventDone();
}

void X11TapSession::receiveKey(const xcb_generic_event_t& event, bool isPress)
{
    const auto& input = as<xcb_input_key_press_event_t>(event);
    const auto keycode = static_cast<std::uint8_t>(input.detail);
    const auto code = virtualKeyCode(keycode);
    const auto modifier = modifierFlagOf(code);
    const bool isRepeat = isPress && (input.flags & XCB_INPUT_KEY_EVENT_FLAGS_KEY_REPEAT) != 0;
    const auto type = modifier != 0 ? EventType::flagsChanged
        : isPress                   ? EventType::keyDown
                                    : EventType::keyUp;
    EventFields fields{{EventField::keyboardEventKeycode, code}};
    if (isRepeat)
        fields.set(EventField::keyboardEventAutorepeat, 1);
    const auto held = modifier & ~eventFlag::capsLock;
    const auto verdict = offer(type, fields, isPress ? held : 0, isPress ? 0 : held);
    // The server repeats what is played to it by itself.
    if (isPress && !isRepeat)
        pressed(input.deviceid, Kind::key, keycode, verdict == EventVerdict::pass);
    else if (!isPress)
        released(input.deviceid, Kind::key, keycode);
    hooks_.eventDone();
}

void X11TapSession::receiveMotion(const xcb_generic_event_t& event)
{
    const auto& input = as<xcb_input_motion_event_t>(event);
    injection_.moveTo(static_cast<int>(std::lround(number(input.root_x))),
        static_cast<int>(std::lround(number(input.root_y))));
    offerMotion(input.deviceid);
}

void X11TapSession::receiveRawMotion(const xcb_generic_event_t& event)
{
    const auto& input = as<xcb_input_raw_button_press_event_t>(event);
    const auto* mask = xcb_input_raw_button_press_valuator_mask(&input);
    const auto* values = xcb_input_raw_button_press_axisvalues(&input);
    if (input.valuators_len == 0 || (mask[0] & 3) == 0)
        return;
    // Already accelerated. What is less than a pixel is kept for the next motion.
    auto& remainder = remainders_[input.sourceid];
    if (mask[0] & 1)
        remainder.x += number(*values++);
    if (mask[0] & 2)
        remainder.y += number(*values);
    const double x = std::trunc(remainder.x);
    const double y = std::trunc(remainder.y);
    if (x == 0 && y == 0)
        return;
    remainder.x -= x;
    remainder.y -= y;
    injection_.moveBy(static_cast<int>(x), static_cast<int>(y));
    offerMotion(input.sourceid);
}

void X11TapSession::receiveRawRelease(const xcb_generic_event_t& event, Kind kind)
{
    // The device has been given back while a button or key that went on through here was down.
    const auto& input = as<xcb_input_raw_button_press_event_t>(event);
    const auto code = static_cast<std::uint8_t>(input.detail);
    if (ledger_.isOpen(input.sourceid, kind, code))
        released(input.sourceid, kind, code);
    if (kind == Kind::key && pressedForHand_.erase(code) != 0) {
        injection_.play(kind, code, false);
        listen();
    }
}

void X11TapSession::offerMotion(std::uint16_t device)
{
    // The cursor moves whatever becomes of the event, as on every system.
    if (!taps_.sees(motions))
        return;
    const auto& held = heldButtons_[device];
    if (held.empty())
        offer(EventType::mouseMoved, {});
    else
        offer(dragTypeOf(*held.begin()), {{EventField::mouseEventButtonNumber, *held.begin()}});
    hooks_.eventDone();
}

EventVerdict X11TapSession::offer(
    EventType type, EventFields fields, std::uint64_t added, std::uint64_t removed)
{
    if (!taps_.sees(eventMask(type)))
        return EventVerdict::pass;
    const auto state = cursor();
    return taps_.offer({type, state.location, (state.flags | added) & ~removed, fields});
}

void X11TapSession::pressed(std::uint16_t device, Kind kind, std::uint8_t code, bool goesOn)
{
    ledger_.pressed(device, kind, code, goesOn);
    if (goesOn)
        injection_.press(kind, code);
}

void X11TapSession::released(std::uint16_t device, Kind kind, std::uint8_t code)
{
    if (ledger_.released(device, kind, code))
        injection_.release(kind, code);
    if (waitsForRelease_ && ledger_.isEmpty())
        hooks_.grabsMayChange();
}

} // namespace brindlex
