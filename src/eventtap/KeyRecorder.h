#pragma once

#include "eventtap/GlobalEventTap.h"
#include "eventtap/HotkeyCombo.h"
#include "foundation/Observable.h"
#include "platform/ProgramActivation.h"

#include <functional>
#include <optional>

namespace brindlex {

/// Records a key that the user presses while the program is the active one.
///
///     idle ──start──▶ recording ──a key──▶ idle, recorded
///                      ▲  │  │
///                      └──┘  └──Escape, stop──▶ idle
///            a key that is not accepted
///
/// The key that ends the recording goes no further, nor does one that is not accepted; keys that
/// are pressed in other programs pass, and the recording goes on. Main thread only.
class KeyRecorder {
public:
    /// Without `accepts` any key will do, also one without modifiers.
    KeyRecorder(GlobalEventTap& tap, ProgramActivation& activation,
        std::function<void(const HotkeyCombo&)> recorded,
        std::function<bool(const HotkeyCombo&)> accepts = {});
    ~KeyRecorder() { stop(); }
    KeyRecorder(const KeyRecorder&) = delete;
    KeyRecorder& operator=(const KeyRecorder&) = delete;

    const Observable<bool>& recording() const { return recording_; }

    void start();
    void stop();
    /// What the button does: starts, or stops what was started.
    void toggle();

private:
    EventVerdict receive(const Event& event);

    GlobalEventTap& tap_;
    ProgramActivation& activation_;
    const std::function<void(const HotkeyCombo&)> recorded_;
    const std::function<bool(const HotkeyCombo&)> accepts_;
    Observable<bool> recording_{false};
    std::optional<Uuid> tapToken_;
};

} // namespace brindlex
