#pragma once

#include "eventtap/KeyCaps.h"
#include "eventtap/KeyRecorder.h"
#include "ui/controls/KeyCapsField.h"
#include "ui/controls/ViewContext.h"

#include <functional>

namespace brindlex {

/// What it takes to record keys; all of it outlives what records.
struct KeyRecording {
    GlobalEventTap& tap;
    ProgramActivation& activation;
    KeyNaming naming{};
};

/// A key with modifiers that the user sets by pressing it. A press on the field begins to record,
/// another one or Escape stops.
class KeyRecorderField : public KeyCapsField {
public:
    /// `name` is what a screen reader calls it; `changed` is called with what the user has set, and
    /// with the code -1 when the key was taken away.
    KeyRecorderField(const ViewContext& context, const QString& name, const KeyRecording& recording,
        std::function<void(const HotkeyCombo&)> changed);

    void show(const HotkeyCombo& combo);

    const Observable<bool>& recording() const { return recorder_.recording(); }

    /// Whether a key will do; with one that will not the recording goes on. Any key will do as long
    /// as this is not set.
    std::function<bool(const HotkeyCombo&)> accepts{};

protected:
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void showNow();

    const KeyNaming naming_;
    const std::function<void(const HotkeyCombo&)> changed_;
    HotkeyCombo combo_{.keyCode = -1, .modifiers = {}};
    KeyRecorder recorder_;
    Subscription recordingChanges_;
};

} // namespace brindlex
