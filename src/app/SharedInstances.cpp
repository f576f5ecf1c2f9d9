#include "app/SharedInstances.h"

#include "shell/SpokenLanguage.h"

namespace brindlex {

SharedInstances::SharedInstances(Platform& platform)
    : platform_(platform), preferences_(platform.defaults, platform.userFolders),
      softwareUpdateManager_(platform.network, platform.program),
      permittedTapping_(platform.eventTapping, platform.eventPermissions),
      unlockedTapping_(permittedTapping_, platform.sessionLock),
      changesOfOthers_(platform.defaults.observeChanges([this] { reload(); }))
{
}

const StringCatalogue& SharedInstances::strings()
{
    return strings_.get(spokenLanguage(platform_.defaults, platform_.languages));
}

LanguageManager& SharedInstances::languageManager()
{
    return languageManager_.get(platform_.defaults, platform_.relaunching, platform_.instances);
}

LaunchAtLoginManager& SharedInstances::launchAtLoginManager()
{
    return launchAtLoginManager_.get(platform_.defaults, platform_.loginItem, platform_.activation);
}

OverlayHUDController& SharedInstances::overlayHUDController()
{
    return overlayHUDController_.get(
        platform_.overlayPanel, platform_.mainThread, platform_.sessionLock);
}

ShellWindows& SharedInstances::windows() { return windows_.get(platform_); }

GlobalEventTap& SharedInstances::globalEventTap()
{
    return globalEventTap_.get(unlockedTapping_, platform_.eventPermissions, platform_.activation);
}

InputMethodSubsystem& SharedInstances::inputMethod() { return inputMethod_.get(platform_); }

MouseSubsystem& SharedInstances::mouse() { return mouse_.get(platform_, globalEventTap()); }

ClipboardSubsystem& SharedInstances::clipboard()
{
    return clipboard_.get(
        ClipboardAbilities{
            .mainThread = platform_.mainThread,
            .clock = platform_.clock,
            .defaults = platform_.defaults,
            .userFolders = platform_.userFolders,
            .indexQueue = platform_.historyQueue,
            .pasteboard = platform_.pasteboard,
            .images = platform_.images,
            .pasting = platform_.pasting,
            .applications = platform_.applications,
            .activating = platform_.activating,
            .instances = platform_.instances,
            .panel = platform_.keyablePanel,
            .screens = platform_.screens,
            .previewing = platform_.previewing,
        },
        globalEventTap(),
        TextFolding(platform_.languages.empty() ? std::string() : platform_.languages.front()),
        [this](const std::shared_ptr<ClipboardPicker>& picker) {
            return hostPicker_ ? hostPicker_(picker) : Size{};
        });
}

void SharedInstances::reload()
{
    if (auto* windows = windows_.ifMade())
        windows->reload();
    if (auto* inputMethod = inputMethod_.ifMade())
        inputMethod->reload();
    if (auto* mouse = mouse_.ifMade())
        mouse->reload();
}

} // namespace brindlex
