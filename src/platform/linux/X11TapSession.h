#pragma once

#include "platform/PressLedger.h"
#include "platform/linux/TapChain.h"
#include "platform/linux/TapDemand.h"
#include "platform/linux/X11DeviceGrabs.h"
#include "platform/linux/X11Injection.h"
#include "platform/linux/X11InputDevices.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace brindlex {

/// Where the cursor is and what is held with it.
struct X11CursorState {
    Point location{};
    std::uint64_t flags = 0;
};

/// The taps in front of the devices, for as long as one connection to the X server lasts.
///
/// What a taken device sends is shown to the taps; what they let pass is played to the applications
/// in the order in which it came, a release where its press went. Main thread only.
class X11TapSession {
public:
    struct Hooks {
        /// An event has gone its way.
        std::function<void()> eventDone{};
        /// Devices have come or gone, or all that was held has been let go.
        std::function<void()> grabsMayChange{};
        /// The connection is gone; from the loop.
        std::function<void()> ended{};
    };

    X11TapSession(const std::string& display, TapChain& taps, Hooks hooks);
    ~X11TapSession();

    /// Whether the server is there and lets the input be tapped.
    bool isUsable() const { return masters_ && connection_.isAlive(); }

    /// Takes what the demand needs; false when something is left to be done later.
    bool apply(const TapDemand& demand);
    bool takesNothing() const { return grabs_.isNothing(); }

    X11CursorState cursor();

    /// Presses those of the keys again that a hand holds, after they were released in its place.
    void pressForHand(const std::vector<std::uint8_t>& keys);

    X11Connection& connection() { return connection_; }
    X11Injection& injection() { return injection_; }
    const std::vector<X11InputDevice>& devices() const { return devices_; }

    /// A window of the connection, by which another program can tell the server to end it.
    xcb_window_t handle() const { return handle_; }

private:
    struct Remainder {
        double x = 0;
        double y = 0;
    };

    void makeHandle();
    void listen();
    bool mayMissReleases() const;
    void selectEvents(bool toReleases);
    void selectKeymapChanges(bool isSelected);
    void copyKeymapToTaken();
    void findDevices();
    void receive(const xcb_generic_event_t& event);
    void receiveHierarchy(const xcb_generic_event_t& event);
    void receiveButton(const xcb_generic_event_t& event, bool isPress);
    void receiveWheel(std::uint8_t button);
    void receiveKey(const xcb_generic_event_t& event, bool isPress);
    void receiveMotion(const xcb_generic_event_t& event);
    void receiveRawMotion(const xcb_generic_event_t& event);
    void receiveRawRelease(const xcb_generic_event_t& event, PressLedger::Kind kind);
    void offerMotion(std::uint16_t device);
    EventVerdict offer(
        EventType type, EventFields fields, std::uint64_t added = 0, std::uint64_t removed = 0);
    void pressed(std::uint16_t device, PressLedger::Kind kind, std::uint8_t code, bool goesOn);
    void released(std::uint16_t device, PressLedger::Kind kind, std::uint8_t code);
    void lostDevice(std::uint16_t device);

    std::string display_;
    TapChain& taps_;
    Hooks hooks_;
    X11Connection connection_;
    std::optional<X11MasterDevices> masters_;
    std::uint8_t inputOpcode_ = 0;
    std::uint8_t keymapEvent_ = 0;
    bool listensToKeymap_ = false;
    bool hasKeymapChanged_ = false;
    xcb_window_t handle_ = 0;
    bool listensToReleases_ = false;
    bool waitsForRelease_ = false;
    X11DeviceGrabs grabs_{connection_};
    X11Injection injection_;
    PressLedger ledger_;
    std::vector<X11InputDevice> devices_;
    std::set<std::uint8_t> pressedForHand_;
    std::map<std::uint16_t, Remainder> remainders_;
    std::map<std::uint16_t, std::set<std::int64_t>> heldButtons_;
    Subscription events_;
    Subscription end_;
};

} // namespace brindlex
