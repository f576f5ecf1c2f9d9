#pragma once

#include "clipboard/ClipboardItems.h"
#include "eventtap/GlobalEventTap.h"
#include "eventtap/HotkeyCombo.h"
#include "foundation/Lifetime.h"
#include "foundation/Uuid.h"
#include "platform/ApplicationActivating.h"
#include "platform/MainThread.h"
#include "platform/Pasteboard.h"
#include "platform/Pasting.h"
#include "platform/RunningApplications.h"
#include "platform/UserDefaults.h"

#include <list>
#include <optional>

namespace brindlex {

class ClipboardHistoryMonitor;
class ClipboardHistoryStore;
class ClipboardPickerPanelController;

/// Runs the clipboard history as the preferences say: records what is copied, opens the picker at
/// the hotkey, and pastes what is chosen into the application that was in front.
///
/// A change of the preferences counts 250 ms after the last change of any of them. The hotkey is
/// swallowed; with one modifier more it passes, and so does what the program types itself. Main
/// thread only.
class ClipboardManager {
public:
    /// What the manager works with, which outlives it.
    struct Abilities {
        UserDefaults& defaults;
        MainThread& mainThread;
        const RunningApplications& applications;
        ApplicationActivating& activating;
        Pasteboard& pasteboard;
        Pasting& pasting;
        GlobalEventTap& tap;
    };

    /// The same for the rest of the clipboard history.
    struct Parts {
        const ClipboardHistoryStore& store;
        ClipboardHistoryMonitor& monitor;
        ClipboardPickerPanelController& pickerPanel;
    };

    ClipboardManager(const Abilities& abilities, const Parts& parts);
    ~ClipboardManager() { removeHotkey(); }
    ClipboardManager(const ClipboardManager&) = delete;
    ClipboardManager& operator=(const ClipboardManager&) = delete;

    /// May be called again while it runs.
    void start();
    /// A picker that is open stays, and a paste that is on its way comes.
    void stop();

    /// What the hotkey does.
    void showPicker();

private:
    bool isEnabled() const;
    HotkeyCombo hotkey() const;
    void applyMonitoring();
    void installHotkey();
    void removeHotkey();
    void awaitPreferenceCheck();
    void checkPreferences();
    void scheduleWarmUp();
    void pasteBack(const ClipboardItem& item);
    void postPasteLater();

    Abilities abilities_;
    Parts parts_;
    Lifetime lifetime_;
    std::optional<Uuid> hotkeyToken_;
    std::optional<RunningApplication> previousApp_;
    Subscription defaultsChanges_;
    Subscription preferenceCheck_;
    std::optional<bool> lastEnabled_;
    std::optional<HotkeyCombo> lastHotkey_;
    Subscription pickerWarmUpTask_;
    std::list<Subscription> pasteTasks_;
};

} // namespace brindlex
