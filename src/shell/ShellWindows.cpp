#include "shell/ShellWindows.h"

#include "shell/ShellPreferenceKeys.h"
#include "shell/WindowScenes.h"

namespace brindlex {

ShellWindows::ShellWindows(Platform& platform)
    : platform_(platform), dockIconPolicy_(platform.activationPolicy, platform.mainThread),
      mainWindow_(platform.programWindows, platform.activation, platform.mainThread),
      auxiliaryWindows_(platform.programWindows, platform.mainThread, [this] { applyDockPolicy(); })
{
    const std::string scene(windowScene::main.id);
    if (platform.programWindows.hasScene(scene))
        mainWindow_.setOpenMainWindowAction(
            [this, scene] { platform_.programWindows.open(scene); });
}

DockIconPolicyResult ShellWindows::applyDockPolicy()
{
    return dockIconPolicy_.apply(showsDockIcon());
}

bool ShellWindows::hasWindow(const WindowScene& scene) const
{
    return platform_.programWindows.hasScene(std::string(scene.id));
}

void ShellWindows::setShowsDockIcon(bool showsDockIcon)
{
    applyDeferred(showsDockIcon, true);
    writePreference(platform_.defaults, ShellPreferenceKeys{}.showsDockIcon, showsDockIcon);
}

void ShellWindows::reload()
{
    const bool wanted = showsDockIcon();
    const auto present = dockIconPolicy_.wantedShowsDockIcon();
    if (present && present != wanted)
        applyDeferred(wanted, false);
}

bool ShellWindows::showsDockIcon() const
{
    return readPreference(platform_.defaults, ShellPreferenceKeys{}.showsDockIcon);
}

void ShellWindows::applyDeferred(bool showsDockIcon, bool isExplicit)
{
    dockIconPolicy_.applyDeferred(showsDockIcon, [this, isExplicit](DockIconPolicyResult result) {
        mainWindow_.handleDockResult(result, isExplicit);
    });
}

} // namespace brindlex
