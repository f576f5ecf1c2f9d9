#pragma once

#include "app/OverlayHUDController.h"
#include "app/Preferences.h"
#include "catalogue/StringCatalogue.h"
#include "clipboard/ClipboardSubsystem.h"
#include "eventtap/GlobalEventTap.h"
#include "eventtap/PermittedEventTapping.h"
#include "eventtap/UnlockedEventTapping.h"
#include "foundation/MadeOnFirstUse.h"
#include "inputmethod/InputMethodSubsystem.h"
#include "mouse/MouseSubsystem.h"
#include "platform/Platform.h"
#include "shell/LanguageManager.h"
#include "shell/LaunchAtLoginManager.h"
#include "shell/ShellWindows.h"
#include "shell/SoftwareUpdateManager.h"

#include <memory>
#include <utility>

namespace brindlex {

/// The one of each subsystem, and what they share. Each is made on first use and kept to the end of
/// the process. What another process writes to the preferences reaches the subsystems. Main thread
/// only.
class SharedInstances {
public:
    explicit SharedInstances(Platform& platform);

    Preferences& preferences() { return preferences_; }
    /// There from the beginning, whether or not anybody ever asks for updates.
    SoftwareUpdateManager& softwareUpdateManager() { return softwareUpdateManager_; }
    /// In the language that the program speaks, which is settled when they are asked for first.
    const StringCatalogue& strings();
    LanguageManager& languageManager();
    LaunchAtLoginManager& launchAtLoginManager();
    OverlayHUDController& overlayHUDController();
    ShellWindows& windows();
    GlobalEventTap& globalEventTap();
    InputMethodSubsystem& inputMethod();
    MouseSubsystem& mouse();
    ClipboardSubsystem& clipboard();
    /// Null before its first use, which reads and tidies the folder of the history.
    ClipboardSubsystem* clipboardIfMade() { return clipboard_.ifMade(); }

    /// Brings the pickers of the clipboard history to their panel from now on; without it the panel
    /// stays empty.
    void setPickerHosting(ClipboardPickerPanelController::Hosting hosting)
    {
        hostPicker_ = std::move(hosting);
    }

private:
    void reload();

    Platform& platform_;
    Preferences preferences_;
    SoftwareUpdateManager softwareUpdateManager_;
    PermittedEventTapping permittedTapping_;
    UnlockedEventTapping unlockedTapping_;
    MadeOnFirstUse<StringCatalogue> strings_;
    MadeOnFirstUse<LanguageManager> languageManager_;
    MadeOnFirstUse<LaunchAtLoginManager> launchAtLoginManager_;
    MadeOnFirstUse<OverlayHUDController> overlayHUDController_;
    MadeOnFirstUse<ShellWindows> windows_;
    MadeOnFirstUse<GlobalEventTap> globalEventTap_;
    MadeOnFirstUse<InputMethodSubsystem> inputMethod_;
    MadeOnFirstUse<MouseSubsystem> mouse_;
    ClipboardPickerPanelController::Hosting hostPicker_;
    MadeOnFirstUse<ClipboardSubsystem> clipboard_;
    Subscription changesOfOthers_;
};

} // namespace brindlex
