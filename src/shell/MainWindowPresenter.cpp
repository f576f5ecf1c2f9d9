#include "shell/MainWindowPresenter.h"

#include "shell/DockResultReaction.h"
#include "shell/WindowScenes.h"

#include <string>
#include <utility>

namespace brindlex {
namespace {

const std::string& mainScene()
{
    static const std::string scene(windowScene::main.id);
    return scene;
}

} // namespace

MainWindowPresenter::MainWindowPresenter(
    ProgramWindows& windows, ProgramActivation& activation, MainThread& mainThread)
    : windows_(windows), activation_(activation), mainThread_(mainThread),
      pendingPresentationTask_(mainThread), trackedMainWindow_(mainWindow()),
      windowOpening_(windows.observeDidOpen([this](const std::string& scene, ProgramWindow window) {
          if (scene == mainScene())
              track(window);
      })),
      windowClosing_(windows.observeWillClose(
          [this](const std::string&, ProgramWindow window) { noteClosing(window); })),
      appActivationObserver_(
          observe(&ProgramActivation::observeDidBecomeActive, &MainWindowPresenter::confirm)),
      appDeactivationObserver_(
          observe(&ProgramActivation::observeDidResignActive, &MainWindowPresenter::reconsider))
{
}

void MainWindowPresenter::setOpenMainWindowAction(std::function<void()> action)
{
    openMainWindowAction_ = std::move(action);
    presentLaunchIfDue();
}

bool MainWindowPresenter::hasMainWindow() const { return openMainWindowAction_ || mainWindow(); }

void MainWindowPresenter::finishLaunching(bool launchFocusRequest)
{
    didFinishLaunching_ = true;
    launchFocusRequestPending_ = launchFocusRequest;
    presentLaunchIfDue();
}

void MainWindowPresenter::showMainWindow()
{
    launchFocusRequestPending_ = false;
    present();
}

void MainWindowPresenter::handleDockResult(DockIconPolicyResult result, bool isExplicit)
{
    const auto window = mainWindow();
    switch (dockResultReaction({
        .result = result,
        .isExplicit = isExplicit,
        .isMainWindowClosedByUser = isMainWindowClosedByUser_,
        .isMainWindowVisible = window && windows_.isVisible(*window),
    })) {
    case DockResultReaction::none:
        return;
    case DockResultReaction::show:
        return showMainWindow();
    case DockResultReaction::raiseAgain:
        return raiseAgain();
    }
}

void MainWindowPresenter::stop()
{
    pendingPresentationTask_.cancel();
    trackedMainWindow_.reset();
    ++trackedMainWindowToken_;
    didFinishLaunching_ = false;
    launchFocusRequestPending_ = false;
    isMainWindowClosedByUser_ = false;
}

std::optional<ProgramWindow> MainWindowPresenter::mainWindow() const
{
    return windows_.window(mainScene());
}

void MainWindowPresenter::track(std::optional<ProgramWindow> window)
{
    trackedMainWindow_ = window;
    ++trackedMainWindowToken_;
    isMainWindowClosedByUser_ = false;
    presentLaunchIfDue();
}

void MainWindowPresenter::noteClosing(ProgramWindow window)
{
    if (trackedMainWindow_ != window)
        return;
    trackedMainWindow_.reset();
    ++trackedMainWindowToken_;
    isMainWindowClosedByUser_ = true;
}

void MainWindowPresenter::presentLaunchIfDue()
{
    const bool isDue
        = didFinishLaunching_ && launchFocusRequestPending_ && !isMainWindowClosedByUser_;
    if (!isDue || !hasMainWindow())
        return;
    launchFocusRequestPending_ = false;
    present();
}

void MainWindowPresenter::present()
{
    pendingPresentationTask_.cancel();
    outlivesDeactivation_ = false;
    if (const auto open = openMainWindowAction_; open && !mainWindow())
        open();
    if (!bringForward())
        tryAgainAfter(showDelays);
}

void MainWindowPresenter::raiseAgain()
{
    outlivesDeactivation_ = true;
    tryAgainAfter(raiseAgainDelays);
}

void MainWindowPresenter::tryAgainAfter(std::span<const Seconds> delays)
{
    auto target = trackedMainWindow_ ? std::optional(trackedMainWindowToken_) : std::nullopt;
    pendingPresentationTask_.start(delays, [this, target]() mutable {
        if (!target && trackedMainWindow_)
            target = trackedMainWindowToken_;
        const bool isReplaced = target && target != trackedMainWindowToken_;
        return !isReplaced && !bringForward();
    });
}

bool MainWindowPresenter::bringForward()
{
    const auto window = mainWindow();
    return window && windows_.bringForward(*window);
}

/// Follows a change once whoever made it has done with it.
Subscription MainWindowPresenter::observe(
    Subscription (ProgramActivation::*change)(std::function<void()>),
    void (MainWindowPresenter::*follow)())
{
    return (activation_.*change)([this, follow] {
        mainThread_.post([this, follow, alive = lifetime_.watch()] {
            if (!alive.expired())
                (this->*follow)();
        });
    });
}

void MainWindowPresenter::confirm()
{
    if (isPresentationPending() && !outlivesDeactivation_ && bringForward())
        pendingPresentationTask_.cancel();
}

void MainWindowPresenter::reconsider()
{
    const auto window = mainWindow();
    const bool wasSeen = window && windows_.isVisible(*window) && !activation_.isActive();
    if (wasSeen && !outlivesDeactivation_)
        pendingPresentationTask_.cancel();
}

} // namespace brindlex
