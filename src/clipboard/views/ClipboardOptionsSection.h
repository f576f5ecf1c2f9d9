#pragma once

#include "clipboard/ClipboardSettings.h"
#include "eventtap/views/KeyRecorderField.h"
#include "ui/controls/Chooser.h"
#include "ui/controls/Page.h"
#include "ui/controls/ToggleSwitch.h"

#include <vector>

namespace brindlex {

/// Whether there is a clipboard history, what opens it and how much it keeps. While there is none,
/// only that can be changed.
class ClipboardOptionsSection {
public:
    ClipboardOptionsSection(Page& page, const ViewContext& context, ClipboardSettings& settings,
        const KeyRecording& recording);

    void show();

private:
    void makeRows(Card& card);
    bool accepts(const HotkeyCombo& combo);
    void showHotkey();
    void showMaxItems();

    const ViewContext context_;
    ClipboardSettings& settings_;
    const ModifierNames modifiers_;
    ToggleSwitch* const enabled_;
    KeyRecorderField* const hotkey_;
    ToggleSwitch* const pastesAutomatically_;
    Chooser* const maxItems_;
    Row* hotkeyRow_ = nullptr;
    /// Those that mean nothing without a history.
    std::vector<Row*> dependentRows_;
    Subscription recordingChanges_;
};

} // namespace brindlex
