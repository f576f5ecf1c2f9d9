#pragma once

#include "platform/HeldButtons.h"
#include "platform/PressLedger.h"
#include "platform/linux/input/MotionRemainder.h"
#include "platform/linux/input/TapChain.h"
#include "platform/linux/input/X11CursorState.h"
#include "platform/linux/input/X11DeviceGrabs.h"
#include "platform/linux/input/X11Injection.h"
#include "platform/linux/input/X11InputEvent.h"
#include "platform/linux/input/X11PointerMap.h"

#include <functional>
#include <map>
#include <utility>

namespace brindlex {

/// What lies between taken devices and the applications: shows the taps what the devices send and
/// plays what they let pass, in the order in which it came.
///
/// The taps see the buttons as the applications would get them. A button keeps from its press to
/// its release what it was at the press, and one that is none goes by the taps.
///
/// A release goes where its press went, whatever the taps say to it; that of a button goes before
/// they see it. Motion always moves the cursor. The server repeats a held key that was played to it
/// by itself, so that repeats are shown and not played. Main thread only.
class X11TappedInput {
public:
    struct Hooks {
        std::function<X11CursorState()> cursor{};
        /// A press or a notch was swallowed while these modifiers were held, as flags of an event.
        std::function<void(std::uint64_t flags)> swallowed{};
        /// An event has gone its way.
        std::function<void()> eventDone{};
        /// The last button or key that was pressed here is up again.
        std::function<void()> allReleased{};
    };

    X11TappedInput(
        TapChain& taps, const X11DeviceGrabs& grabs, X11Injection& injection, Hooks hooks);

    void receive(const X11InputEvent::Button& event);
    void receive(const X11InputEvent::Key& event);
    void receive(const X11InputEvent::Motion& event);
    void receive(const X11InputEvent::Place& event);

    /// The device was given back while something was down that had been pressed here.
    void receive(const X11InputEvent::FreeRelease& event);

    /// The device has gone, and nothing of what it held may stay down.
    void lose(std::uint16_t device);

    /// What the buttons are from the next press on.
    void setPointerMap(X11PointerMap map) { map_ = std::move(map); }

    /// Whether no button and no key is down that was pressed here.
    bool holdsNothing() const { return ledger_.isEmpty(); }

private:
    struct Mouse {
        HeldButtons held{};
        MotionRemainder remainder{};
        /// What the buttons that are down were when they were pressed.
        std::map<std::uint8_t, std::uint8_t> meanings{};
    };

    void press(const X11InputEvent::Button& event, std::uint8_t meaning);
    void release(const X11InputEvent::Button& event);
    void turnWheel(std::uint8_t button, std::uint8_t meaning);
    static void letGo(Mouse& mouse, std::uint8_t button);
    X11CursorState cursorAt(const X11InputEvent::Key& event);
    void offerMotion(std::uint16_t device);
    EventVerdict offer(EventType type, EventFields fields);
    EventVerdict offer(const Event& event);
    void pressed(
        std::uint16_t device, PressLedger::Kind kind, std::uint8_t code, EventVerdict verdict);
    void released(std::uint16_t device, PressLedger::Kind kind, std::uint8_t code);

    TapChain& taps_;
    const X11DeviceGrabs& grabs_;
    X11Injection& injection_;
    Hooks hooks_;
    X11PointerMap map_;
    PressLedger ledger_;
    std::map<std::uint16_t, Mouse> mice_;
};

} // namespace brindlex
