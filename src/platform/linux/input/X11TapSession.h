#pragma once

#include "platform/linux/input/TapChain.h"
#include "platform/linux/input/TapDemand.h"
#include "platform/linux/input/X11CursorState.h"
#include "platform/linux/input/X11DeviceGrabs.h"
#include "platform/linux/input/X11Injection.h"
#include "platform/linux/input/X11InputDevices.h"
#include "platform/linux/input/X11InputEvent.h"
#include "platform/linux/input/X11KeymapSync.h"
#include "platform/linux/input/X11KeysForHand.h"
#include "platform/linux/input/X11PointerMap.h"
#include "platform/linux/input/X11TappedInput.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// The taps in front of the devices, for as long as one connection to the X server lasts.
///
/// Takes devices from the applications as the taps demand, follows those that come and go, and
/// hands what they send to `X11TappedInput`. Main thread only.
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
    /// Why the input could not be tapped when the connection was made.
    std::optional<X11TappingProblem> problem() const
    {
        return masters_ ? std::nullopt : std::optional(masters_.error());
    }

    /// Takes what the demand needs; false when something is left to be done later.
    bool apply(const TapDemand& demand);
    bool takesNothing() const { return grabs_.isNothing(); }

    X11CursorState cursor() { return cursorState(connection_); }

    /// Presses those of the keys again that a hand holds, after they were released in its place.
    void pressForHand(const std::vector<std::uint8_t>& keys);

    /// Which buttons of a hand, and of what is played, are which to the applications.
    const X11PointerMap& pointerMap() const { return pointerMap_; }

    X11Connection& connection() { return connection_; }
    X11Injection& injection() { return injection_; }

    /// A window of the connection, by which another program can have the server end it.
    xcb_window_t handle() const { return handle_; }

private:
    void makeHandle();
    bool mayMissReleases() const;
    void listenToReleasesAsNeeded();
    void selectEvents(bool toReleases);
    void requestEcho();
    void receiveEcho(const xcb_generic_event_t& event);
    std::vector<X11InputDevice> takenKeyboards() const;
    void findDevices();
    void receive(const xcb_generic_event_t& event);
    void readPointerMap();
    void receiveKey(const X11InputEvent::Key& event);
    void receiveFreeRelease(const X11InputEvent::FreeRelease& event);
    void receiveChange(const X11InputEvent::DevicesChanged& change);

    Hooks hooks_;
    X11Connection connection_;
    Result<X11MasterDevices, X11TappingProblem> masters_;
    std::uint8_t inputOpcode_ = 0;
    xcb_window_t handle_ = 0;
    bool listensToReleases_ = false;
    bool isDone_ = true;
    X11PointerMap pointerMap_;
    std::uint32_t lastEcho_ = 0;
    std::vector<X11InputDevice> devices_;
    X11DeviceGrabs grabs_;
    X11Injection injection_;
    X11TappedInput input_;
    X11KeysForHand keysForHand_;
    X11KeymapSync keymap_;
    Subscription events_;
    Subscription end_;
};

} // namespace brindlex
