#pragma once

#include "platform/UserDefaults.h"
#include "shell/LanguageManager.h"
#include "shell/LaunchAtLoginManager.h"
#include "shell/ShellWindows.h"

#include <functional>

namespace brindlex {

/// What the general settings show and do, without their screen. Main thread only.
class GeneralSettings {
public:
    GeneralSettings(UserDefaults& defaults, LaunchAtLoginManager& launchAtLogin,
        ShellWindows& windows, LanguageManager& language);

    bool launchAtLogin() const;
    /// What is shown afterwards is what the system has taken.
    void setLaunchAtLogin(bool isOn);

    bool showsDockIcon() const;
    void setShowsDockIcon(bool isOn) { windows_.setShowsDockIcon(isOn); }

    LanguagePreference language() const;
    /// Starts the program anew, unless it is the present choice.
    void setLanguage(LanguagePreference language);

    /// Whether there is a guide to open.
    bool hasPermissionsGuide() const { return windows_.hasWindow(windowScene::permissions); }
    void openPermissionsGuide();

private:
    UserDefaults& defaults_;
    LaunchAtLoginManager& launchAtLogin_;
    ShellWindows& windows_;
    LanguageManager& language_;
};

} // namespace brindlex
