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
///                         │
///                         └──Escape, stop──▶ idle
///
/// The key that ends the recording goes no further; keys that are pressed in other programs pass,
/// and the recording goes on. Any key will do, also one without modifiers. Main thread only.
class KeyRecorder {
public:
    KeyRecorder(GlobalEventTap& tap, ProgramActivation& activation,
        std::function<void(const HotkeyCombo&)> recorded);
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
    Observable<bool> recording_{false};
    std::optional<Uuid> tapToken_;
};

} // namespace brindlex
