#include "app/AppLifecycleCoordinator.h"

#include "app/ProgramIdentity.h"
#include "app/SingleInstanceManager.h"
#include "log/Log.h"
#include "platform/AppGroupFolders.h"
#include "shell/AppVersionTracker.h"
#include "shell/RestoreFocusFlag.h"

namespace brindlex {
namespace {

/// How long the label of an automatic switch, or the reply to a second launch, stays.
constexpr Seconds overlayDuration = 0.8;

/// How often the program shows itself at most.
constexpr Seconds showInterval = 0.5;

} // namespace

AppLifecycleCoordinator::AppLifecycleCoordinator(Platform& platform, SharedInstances& shared)
    : platform_(platform), shared_(shared),
      showing_(platform.mainThread, showInterval, [this] { showMainWindow(); })
{
}

void AppLifecycleCoordinator::start()
{
    if (wakeExistingInstance())
        return;
    makeAppGroupFolders(platform_.container);
    Log::prune(platform_.clock.now());
    shared_.languageManager().applyStoredPreference();
    seedDefaults(platform_.defaults, shared_.preferences().keys());
    AppVersionTracker(platform_.defaults, platform_.program.shortVersion).recordLaunch();
    observeShowRequests();
    shared_.windows().applyDockPolicy();
    shared_.launchAtLoginManager().beginObserving();
    startInputSwitching();
    shared_.mouse().clickManager().start();
    shared_.mouse().gestureManager().start();
    shared_.mouse().scrollManager().start();
    shared_.clipboard().manager().start();
    isStarted_ = true;
    Log::notice("Brindlex launched", logCategory::lifecycle);
}

void AppLifecycleCoordinator::didFinishLaunching(bool isSilentLaunch)
{
    startMenuBarExtra();
    const bool restoresFocus = consumeRestoreFocusFlag(platform_.defaults);
    shared_.windows().mainWindow().finishLaunching(restoresFocus || !isSilentLaunch);
}

void AppLifecycleCoordinator::stop()
{
    Log::notice("Brindlex will terminate", logCategory::lifecycle);
    shared_.inputMethod().switchCoordinator().dispatch(SwitchEvent::Stop{});
    shared_.mouse().clickManager().tearDown();
    shared_.mouse().gestureManager().tearDown();
    shared_.mouse().scrollManager().tearDown();
    // The history may be that of another instance, to which this one has yielded.
    if (auto* clipboard = shared_.clipboardIfMade())
        clipboard->manager().stop();
    shared_.windows().dockIconPolicy().cancelPending();
    shared_.windows().mainWindow().stop();
    showRequests_.reset();
    showing_.cancel();
    if (auto* menuBarExtra = menuBarExtra_.ifMade())
        menuBarExtra->stop();
}

void AppLifecycleCoordinator::showMainWindow()
{
    Log::info("Asked to show the main window", logCategory::lifecycle);
    auto& windows = shared_.windows();
    const auto result = windows.applyDockPolicy();
    windows.mainWindow().handleDockResult(result, false);
    presentMainWindow();
}

void AppLifecycleCoordinator::openMainWindow()
{
    Log::info("Asked to show the main window", logCategory::lifecycle);
    presentMainWindow();
}

void AppLifecycleCoordinator::presentMainWindow()
{
    auto& mainWindow = shared_.windows().mainWindow();
    mainWindow.showMainWindow();
    if (!mainWindow.hasMainWindow())
        shared_.overlayHUDController().show("Brindlex", overlayDuration);
}

void AppLifecycleCoordinator::startMenuBarExtra()
{
    menuBarExtra_
        .get(platform_.statusItem, platform_.mainThread, shared_.softwareUpdateManager(),
            shared_.strings(), platform_.program.name,
            MenuBarExtra::Actions{
                [this] { openMainWindow(); }, [this] { platform_.instances.terminate(); }})
        .start();
}

bool AppLifecycleCoordinator::wakeExistingInstance()
{
    const SingleInstanceManager manager(platform_.instances);
    const auto existing = manager.instanceToYieldTo(shared_.preferences());
    if (!existing)
        return false;
    manager.wake(*existing, platform_.distributedNotifications);
    platform_.instances.terminate();
    return true;
}

void AppLifecycleCoordinator::observeShowRequests()
{
    showRequests_.reset();
    showRequests_ = platform_.distributedNotifications.observe(programIdentity::showMainWindow,
        programIdentity::bundleIdentifier, [this] { showMainWindowRequested(); });
}

void AppLifecycleCoordinator::startInputSwitching()
{
    auto& switching = shared_.inputMethod().switchCoordinator();
    switching.onSwitch = [this](const std::string& label) {
        shared_.overlayHUDController().show(label, overlayDuration);
    };
    switching.onSwitchUndone = [this] { shared_.overlayHUDController().hide(); };
    switching.dispatch(SwitchEvent::Start{});
}

} // namespace brindlex
