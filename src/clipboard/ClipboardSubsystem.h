#pragma once

#include "clipboard/ClipboardHistoryMonitor.h"
#include "clipboard/ClipboardHistoryStore.h"
#include "clipboard/ClipboardManager.h"
#include "clipboard/ClipboardPickerPanelController.h"
#include "clipboard/ClipboardQuickLookPreviewer.h"
#include "clipboard/ClipboardSearchTexts.h"
#include "foundation/MadeOnFirstUse.h"
#include "platform/BackgroundQueue.h"
#include "platform/UserFolders.h"

namespace brindlex {

/// What the clipboard history needs of the computer.
struct ClipboardAbilities {
    MainThread& mainThread;
    const Clock& clock;
    UserDefaults& defaults;
    const UserFolders& userFolders;
    /// Writes the index.
    BackgroundQueue& indexQueue;
    Pasteboard& pasteboard;
    ImageConverting& images;
    Pasting& pasting;
    RunningApplications& applications;
    ApplicationActivating& activating;
    const ProgramInstances& instances;
    KeyablePanel& panel;
    const ScreenReading& screens;
    FilePreviewing& previewing;
};

/// All of the clipboard history: one of each part, made on first use of the abilities of the
/// computer and kept. These and the tap outlive it. Main thread only.
class ClipboardSubsystem {
public:
    /// Searches compare texts as `folding` does; `host` brings pickers to the panel.
    ClipboardSubsystem(const ClipboardAbilities& abilities, GlobalEventTap& tap,
        const TextFolding& folding, ClipboardPickerPanelController::Hosting host)
        : abilities_(abilities), tap_(tap), searchTexts_(folding), host_(std::move(host))
    {
    }

    ClipboardHistoryStore& store();
    ClipboardHistoryMonitor& monitor();
    ClipboardQuickLookPreviewer& quickLookPreviewer();
    ClipboardPickerPanelController& pickerPanelController();
    ClipboardManager& manager();

private:
    ClipboardAbilities abilities_;
    GlobalEventTap& tap_;
    ClipboardSearchTexts searchTexts_;
    ClipboardPickerPanelController::Hosting host_;
    MadeOnFirstUse<ClipboardHistoryStore> store_;
    MadeOnFirstUse<ClipboardHistoryMonitor> monitor_;
    MadeOnFirstUse<ClipboardQuickLookPreviewer> quickLookPreviewer_;
    MadeOnFirstUse<ClipboardPickerPanelController> pickerPanelController_;
    MadeOnFirstUse<ClipboardManager> manager_;
};

} // namespace brindlex
