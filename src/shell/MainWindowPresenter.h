#pragma once

#include "foundation/Lifetime.h"
#include "foundation/Subscription.h"
#include "platform/MainThread.h"
#include "platform/ProgramActivation.h"
#include "platform/ProgramWindows.h"
#include "shell/DockIconPolicyResult.h"
#include "shell/PresentationTask.h"

#include <functional>
#include <optional>

namespace brindlex {

/// Brings the main window before the user's eyes, however late it comes and however slow the
/// desktop is: a try at once, and more after 50, 150, 300, 600 and 1000 ms, until one succeeds.
/// Besides, there is one when the program has become active, so that no late try takes the keys
/// from another window that the user has opened since.
///
/// A later request takes the place of an earlier one. The tries end when the window is closed or
/// replaced, and, unless they follow the dock icon's going, when the user has seen the window and
/// left for another program. When none succeeds the window stays as it is. Main thread only.
class MainWindowPresenter {
public:
    MainWindowPresenter(
        ProgramWindows& windows, ProgramActivation& activation, MainThread& mainThread);

    /// Says how to open the main window; a launch that waits for it goes on.
    void setOpenMainWindowAction(std::function<void()> action);

    /// Whether there is a main window, or a way to open it.
    bool hasMainWindow() const;

    /// The launch is complete; `launchFocusRequest` is whether it is to bring the window forward.
    void finishLaunching(bool launchFocusRequest);

    /// Shows the main window, opening it if need be.
    void showMainWindow();

    /// Keeps the main window in front when the dock icon has come or gone. `isExplicit` says that
    /// somebody asked for the change and waits for the window.
    void handleDockResult(DockIconPolicyResult result, bool isExplicit);

    /// Ends what is pending and forgets the window and the launch.
    void stop();

    // What it knows at the moment.
    bool isPresentationPending() const { return pendingPresentationTask_.isPending(); }
    std::optional<ProgramWindow> trackedMainWindow() const { return trackedMainWindow_; }
    int trackedMainWindowToken() const { return trackedMainWindowToken_; }
    bool isMainWindowClosedByUser() const { return isMainWindowClosedByUser_; }
    bool hasFinishedLaunching() const { return didFinishLaunching_; }
    bool isLaunchFocusRequestPending() const { return launchFocusRequestPending_; }

private:
    std::optional<ProgramWindow> mainWindow() const;
    void track(std::optional<ProgramWindow> window);
    void noteClosing(ProgramWindow window);
    void presentLaunchIfDue();
    void present();
    void raiseAgain();
    void tryAgainAfter(std::span<const Seconds> delays);
    bool bringForward();
    void confirm();
    void reconsider();
    Subscription observe(Subscription (ProgramActivation::*change)(std::function<void()>),
        void (MainWindowPresenter::*follow)());

    ProgramWindows& windows_;
    ProgramActivation& activation_;
    MainThread& mainThread_;
    std::function<void()> openMainWindowAction_;
    PresentationTask pendingPresentationTask_;
    bool outlivesDeactivation_ = false;
    bool didFinishLaunching_ = false;
    bool launchFocusRequestPending_ = false;
    bool isMainWindowClosedByUser_ = false;
    std::optional<ProgramWindow> trackedMainWindow_;
    int trackedMainWindowToken_ = 0;
    Lifetime lifetime_;
    Subscription windowOpening_;
    Subscription windowClosing_;
    Subscription appActivationObserver_;
    Subscription appDeactivationObserver_;
};

} // namespace brindlex
