#include "platform/linux/input/X11TapSession.h"

#include "platform/linux/input/X11LoneModifiers.h"

#include <algorithm>
#include <utility>
#include <xcb/xinput.h>

namespace brindlex {

X11TapSession::X11TapSession(const std::string& display, TapChain& taps, Hooks hooks)
    : hooks_(std::move(hooks)), connection_(display), masters_(tappableMasters(connection_)),
      grabs_(connection_), injection_(connection_),
      input_(taps, grabs_, injection_,
          {.cursor = [this] { return cursorState(connection_); },
              .swallowed =
                  [this](std::uint64_t flags) {
                      if (actingAlone(flags) != 0)
                          playCompanyForModifiers(connection_, injection_);
                  },
              .eventDone = [this] { hooks_.eventDone(); },
              .allReleased =
                  [this] {
                      if (!isDone_)
                          hooks_.grabsMayChange();
                      listenToReleasesAsNeeded();
                  }}),
      keysForHand_(connection_, injection_), keymap_(connection_, display)
{
    if (!isUsable())
        return;
    inputOpcode_ = xcb_get_extension_data(connection_.get(), &xcb_input_id)->major_opcode;
    injection_.setPointer(playingPointer(connection_, *masters_));
    makeHandle();
    readPointerMap();
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
    // Before anything is taken, so that no release slips through.
    if (!demand.isNothing() && !listensToReleases_)
        selectEvents(true);
    const bool mayLetGo = input_.holdsNothing();
    if (!demand.takesKeyboards && mayLetGo)
        keymap_.bringUpToDate(*masters_, takenKeyboards());
    isDone_ = grabs_.apply(pointerMap_.ofHand(demand), devices_, mayLetGo);
    keymap_.listen(demand.takesKeyboards || (!isDone_ && keymap_.isListening()));
    if (demand.takesMice)
        injection_.takeCursor();
    listenToReleasesAsNeeded();
    xcb_flush(connection_.get());
    return isDone_;
}

void X11TapSession::pressForHand(const std::vector<std::uint8_t>& keys)
{
    keysForHand_.expect(keys);
    listenToReleasesAsNeeded();
    keysForHand_.press(keys, devices_);
    listenToReleasesAsNeeded();
}

void X11TapSession::makeHandle()
{
    handle_ = xcb_generate_id(connection_.get());
    xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, handle_, connection_.root(), -1, -1,
        1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
}

bool X11TapSession::mayMissReleases() const
{
    return !grabs_.isNothing() || !input_.holdsNothing() || !injection_.holdsNothing()
        || !keysForHand_.isEmpty();
}

void X11TapSession::listenToReleasesAsNeeded()
{
    if (listensToReleases_ == mayMissReleases())
        return;
    if (listensToReleases_)
        requestEcho();
    else
        selectEvents(true);
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

void X11TapSession::requestEcho()
{
    // A press that the server has handed out before it gave the devices back may still be on its
    // way to us, and the release that belongs to it. What comes back here comes behind both.
    xcb_client_message_event_t echo{};
    echo.response_type = XCB_CLIENT_MESSAGE;
    echo.format = 32;
    echo.window = handle_;
    echo.data.data32[0] = ++lastEcho_;
    xcb_send_event(connection_.get(), false, handle_, 0, reinterpret_cast<const char*>(&echo));
}

void X11TapSession::receiveEcho(const xcb_generic_event_t& event)
{
    const auto& echo = reinterpret_cast<const xcb_client_message_event_t&>(event);
    if ((event.response_type & 0x7F) == XCB_CLIENT_MESSAGE && echo.window == handle_
        && echo.data.data32[0] == lastEcho_ && listensToReleases_ && !mayMissReleases())
        selectEvents(false);
}

std::vector<X11InputDevice> X11TapSession::takenKeyboards() const
{
    std::vector<X11InputDevice> keyboards;
    for (const auto& device : devices_)
        if (device.kind == X11InputDevice::Kind::keyboard && grabs_.isTaken(device.id))
            keyboards.push_back(device);
    return keyboards;
}

void X11TapSession::findDevices()
{
    // A device that is taken, for ever or for a press, does not belong to the masters at the moment
    // and is not found again.
    std::vector<X11InputDevice> devices;
    for (const auto& device : devices_)
        if (grabs_.mayHold(device.id))
            devices.push_back(device);
    for (const auto& device : tappableDevices(connection_, *masters_))
        if (std::ranges::find(devices, device.id, &X11InputDevice::id) == devices.end())
            devices.push_back(device);
    devices_ = std::move(devices);
}

void X11TapSession::readPointerMap()
{
    pointerMap_ = brindlex::pointerMap(connection_);
    input_.setPointerMap(pointerMap_);
}

void X11TapSession::receive(const xcb_generic_event_t& event)
{
    if (isPointerMapChange(event)) {
        readPointerMap();
        return hooks_.grabsMayChange();
    }
    keymap_.receive(event);
    receiveEcho(event);
    const auto read = readInputEvent(event, inputOpcode_);
    if (!read)
        return;
    match(
        *read, [this](const X11InputEvent::Button& button) { input_.receive(button); },
        [this](const X11InputEvent::Key& key) { receiveKey(key); },
        [this](const X11InputEvent::Motion& motion) { input_.receive(motion); },
        [this](const X11InputEvent::Place& place) { input_.receive(place); },
        [this](const X11InputEvent::FreeRelease& release) { receiveFreeRelease(release); },
        [this](const X11InputEvent::DevicesChanged& change) { receiveChange(change); });
}

void X11TapSession::receiveKey(const X11InputEvent::Key& event)
{
    input_.receive(event);
    if (!event.isPress)
        keysForHand_.released(event.keycode);
}

void X11TapSession::receiveFreeRelease(const X11InputEvent::FreeRelease& event)
{
    input_.receive(event);
    if (event.kind == PressLedger::Kind::key)
        keysForHand_.released(event.code);
    listenToReleasesAsNeeded();
}

void X11TapSession::receiveChange(const X11InputEvent::DevicesChanged& change)
{
    for (const auto gone : change.gone) {
        input_.lose(gone);
        grabs_.forget(gone);
        std::erase_if(devices_, [&](const X11InputDevice& device) { return device.id == gone; });
    }
    findDevices();
    hooks_.grabsMayChange();
}

} // namespace brindlex
