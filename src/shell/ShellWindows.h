#pragma once

#include "platform/Platform.h"
#include "shell/AuxiliaryWindowPresenter.h"
#include "shell/DockIconPolicyManager.h"
#include "shell/MainWindowPresenter.h"
#include "shell/WindowScenes.h"

namespace brindlex {

/// The windows of the program and its icon in the dock, and what joins them to the preference. The
/// platform outlives it; its scenes are there before. Main thread only.
class ShellWindows {
public:
    explicit ShellWindows(Platform& platform);

    DockIconPolicyManager& dockIconPolicy() { return dockIconPolicy_; }
    MainWindowPresenter& mainWindow() { return mainWindow_; }
    AuxiliaryWindowPresenter& auxiliaryWindows() { return auxiliaryWindows_; }

    /// Applies the dock policy of the preference now.
    DockIconPolicyResult applyDockPolicy();

    /// Whether the program has the window.
    bool hasWindow(const WindowScene& scene) const;

    /// Stores what the user has chosen and applies it; the main window stays in front.
    void setShowsDockIcon(bool showsDockIcon);

    /// Applies what has been written to the preference, by whomever.
    void reload();

private:
    bool showsDockIcon() const;
    void applyDeferred(bool showsDockIcon, bool isExplicit);

    Platform& platform_;
    DockIconPolicyManager dockIconPolicy_;
    MainWindowPresenter mainWindow_;
    AuxiliaryWindowPresenter auxiliaryWindows_;
};

} // namespace brindlex
