#pragma once

#include "app/RequestFolding.h"
#include "app/SharedInstances.h"
#include "foundation/MadeOnFirstUse.h"
#include "foundation/Subscription.h"
#include "platform/Platform.h"
#include "shell/MenuBarExtra.h"

namespace brindlex {

/// Starts and stops everything that lives as long as the program, in one fixed order each.
///
/// Nothing else may start or stop a manager at the level of the application. A manager that cannot
/// start stays idle and says so in the log; the sequence goes on. Each sequence runs once in a
/// process. Main thread only.
class AppLifecycleCoordinator {
public:
    AppLifecycleCoordinator(Platform& platform, SharedInstances& shared);

    /// Runs the start sequence. When another instance runs already, wakes that one, asks this
    /// process to end and starts nothing.
    void start();

    /// Whether `start` went through to its end.
    bool isStarted() const { return isStarted_; }

    /// Shows the icon in the menu bar or tray and decides whether the launch brings the main window
    /// forward; called once, from the loop, after `start`. A process that the desktop has started
    /// by itself, `isSilentLaunch`, shows nothing, unless it has taken the place of one that had
    /// the user's eyes.
    void didFinishLaunching(bool isSilentLaunch);

    /// Runs the stop sequence.
    void stop();

    /// Brings the main window before the user's eyes, and where there is none the program's name:
    /// asked for by a second launch. A flood of such requests makes it show itself twice a second.
    void showMainWindowRequested() { showing_.request(); }

private:
    bool wakeExistingInstance();
    void showMainWindow();
    void openMainWindow();
    void presentMainWindow();
    void startMenuBarExtra();
    void observeShowRequests();
    void startInputSwitching();

    Platform& platform_;
    SharedInstances& shared_;
    RequestFolding showing_;
    Subscription showRequests_;
    MadeOnFirstUse<MenuBarExtra> menuBarExtra_;
    bool isStarted_ = false;
};

} // namespace brindlex
