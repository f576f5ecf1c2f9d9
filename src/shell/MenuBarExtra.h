#pragma once

#include "catalogue/StringCatalogue.h"
#include "foundation/Subscription.h"
#include "platform/MainThread.h"
#include "platform/StatusItem.h"
#include "shell/CheckForUpdatesViewModel.h"

#include <functional>
#include <string>

namespace brindlex {

/// The program's icon in the menu bar or tray, with its menu, which follows whether updates can be
/// checked for. A primary click opens the program's window, as its item does.
///
/// Where the desktop has shown no icon for five seconds at a stretch, which a session that is just
/// starting may need, the log says once how else to get at the window. Main thread only.
class MenuBarExtra {
public:
    struct Actions {
        std::function<void()> openApp{};
        std::function<void()> quitApp{};
    };

    /// All of these outlive it; the title is the program's name.
    MenuBarExtra(StatusItem& icon, MainThread& mainThread, SoftwareUpdateManager& updates,
        const StringCatalogue& strings, std::string title, Actions actions);
    MenuBarExtra(const MenuBarExtra&) = delete;
    MenuBarExtra& operator=(const MenuBarExtra&) = delete;

    void start();
    void stop();

private:
    void show(bool canCheckForUpdates);
    void perform(int item);
    void followPresence(bool isOnDesktop);
    void noteAbsence();

    StatusItem& icon_;
    MainThread& mainThread_;
    CheckForUpdatesViewModel updates_;
    const StringCatalogue& strings_;
    const std::string title_;
    const Actions actions_;
    bool hasNotedAbsence_ = false;
    Subscription absence_;
    Subscription presence_;
    Subscription activation_;
    Subscription choice_;
    Subscription updateChanges_;
};

} // namespace brindlex
