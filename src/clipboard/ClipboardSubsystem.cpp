#include "clipboard/ClipboardSubsystem.h"

namespace brindlex {

ClipboardHistoryStore& ClipboardSubsystem::store()
{
    return store_.get(
        ClipboardHistoryStore::Abilities{
            .mainThread = abilities_.mainThread,
            .clock = abilities_.clock,
            .queue = abilities_.indexQueue,
            .defaults = abilities_.defaults,
        },
        clipboardHistoryFolder(abilities_.userFolders));
}

ClipboardHistoryMonitor& ClipboardSubsystem::monitor()
{
    return monitor_.get(
        ClipboardHistoryMonitor::Abilities{
            .pasteboard = abilities_.pasteboard,
            .images = abilities_.images,
            .applications = abilities_.applications,
            .mainThread = abilities_.mainThread,
            .clock = abilities_.clock,
        },
        store());
}

ClipboardQuickLookPreviewer& ClipboardSubsystem::quickLookPreviewer()
{
    return quickLookPreviewer_.get(abilities_.previewing, store());
}

ClipboardPickerPanelController& ClipboardSubsystem::pickerPanelController()
{
    return pickerPanelController_.get(
        ClipboardPickerPanelController::Abilities{
            .panel = abilities_.panel,
            .screens = abilities_.screens,
            .applications = abilities_.applications,
            .instances = abilities_.instances,
            .mainThread = abilities_.mainThread,
        },
        ClipboardPicker::Parts{store(), searchTexts_, quickLookPreviewer()}, host_);
}

ClipboardManager& ClipboardSubsystem::manager()
{
    return manager_.get(
        ClipboardManager::Abilities{
            .defaults = abilities_.defaults,
            .mainThread = abilities_.mainThread,
            .applications = abilities_.applications,
            .activating = abilities_.activating,
            .pasteboard = abilities_.pasteboard,
            .pasting = abilities_.pasting,
            .tap = tap_,
        },
        ClipboardManager::Parts{store(), monitor(), pickerPanelController()});
}

} // namespace brindlex
