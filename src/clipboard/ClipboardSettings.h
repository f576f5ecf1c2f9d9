#pragma once

#include "clipboard/ClipboardHistoryMeter.h"
#include "clipboard/ClipboardHistoryStore.h"
#include "eventtap/HotkeyCombo.h"
#include "foundation/Observable.h"
#include "platform/UserDefaults.h"
#include "platform/UserFolders.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace brindlex {

/// What the user has set of the clipboard history.
struct ClipboardPreferences {
    bool isHistoryEnabled = false;
    /// With a negative code there is no hotkey.
    HotkeyCombo hotkey{};
    bool pastesAutomatically = false;
    std::int64_t maxItems = 0;

    bool operator==(const ClipboardPreferences&) const = default;
};

/// Whether the combination is one that nobody types: a key with command, option or control.
bool isClipboardHotkey(const HotkeyCombo& combo);

/// The limits of the history to choose from, and the present one among them, in ascending order.
std::vector<std::int64_t> clipboardMaxItemsChoices(std::int64_t present);

/// What the settings of the clipboard history show and do, without their screen. Every change is
/// stored at once, and changes by anybody else, other processes included, are published. Main
/// thread only.
class ClipboardSettings {
public:
    /// What the settings work with, which outlives them.
    struct Abilities {
        UserDefaults& defaults;
        MainThread& mainThread;
        const UserFolders& userFolders;
        /// The queue that writes the index; it counts the bytes.
        BackgroundQueue& indexQueue;
    };

    ClipboardSettings(const Abilities& abilities, ClipboardHistoryStore& store);

    const Observable<ClipboardPreferences>& preferences() const { return preferences_; }
    ClipboardHistoryMeter& historyMeter() { return meter_; }

    /// Where the history is.
    const std::filesystem::path& folder() const { return store_.directory(); }
    /// The same as people write it, with "~" for their home folder.
    std::string folderName() const;

    void setHistoryEnabled(bool isOn);
    /// Stores the hotkey, or none for a negative code; a combination that is no hotkey changes
    /// nothing.
    void setHotkey(const HotkeyCombo& combo);
    void setPastesAutomatically(bool isOn);
    void setMaxItems(std::int64_t limit);

    /// Deletes the whole history, pinned items included.
    void clear() { store_.clear(); }

private:
    void publish();

    Abilities abilities_;
    ClipboardHistoryStore& store_;
    ClipboardHistoryMeter meter_;
    Observable<ClipboardPreferences> preferences_;
    Subscription changes_;
};

} // namespace brindlex
