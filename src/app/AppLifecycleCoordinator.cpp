#include "app/AppLifecycleCoordinator.h"

#include "app/ProgramIdentity.h"
#include "app/SingleInstanceManager.h"
#include "log/Log.h"
#include "platform/AppGroupFolders.h"

namespace brindlex {
namespace {

/// How long the label of an automatic switch, or the response to a second launch, stays.
constexpr Seconds overlayDuration = 0.8;

} // namespace

AppLifecycleCoordinator::AppLifecycleCoordinator(Platform& platform, SharedInstances& shared)
    : platform_(platform), shared_(shared)
{
}

void AppLifecycleCoordinator::start()
{
    if (wakeExistingInstance())
        return;
    makeAppGroupFolders(platform_.container);
    Log::prune(platform_.clock.now());
    seedDefaults(platform_.defaults, shared_.preferences().keys());
    observeShowRequests();
    startInputSwitching();
    shared_.mouseClickManager().start();
    shared_.mouseGestureManager().start();
    shared_.mouseScrollManager().start();
    isStarted_ = true;
    Log::notice("Brindlex launched", logCategory::lifecycle);
}

void AppLifecycleCoordinator::stop()
{
    Log::notice("Brindlex will terminate", logCategory::lifecycle);
    shared_.inputMethodSwitchCoordinator().dispatch(SwitchEvent::Stop{});
    shared_.mouseClickManager().tearDown();
    shared_.mouseGestureManager().tearDown();
    shared_.mouseScrollManager().tearDown();
    showRequests_.reset();
}

void AppLifecycleCoordinator::showMainWindowRequested()
{
    Log::info("Asked to show the main window", logCategory::lifecycle);
    shared_.overlayHUDController().show("Brindlex", overlayDuration);
}

bool AppLifecycleCoordinator::wakeExistingInstance()
{
    using Keys = UserDefaultPreferenceKeys;
    if (shared_.preferences().read(&Keys::shouldRestoreFocusAfterLanguageRelaunch))
        return false;
    const auto existing = SingleInstanceManager(platform_.instances).existingInstance();
    if (!existing)
        return false;
    platform_.distributedNotifications.post(
        programIdentity::showMainWindow, programIdentity::bundleIdentifier);
    platform_.instances.activate(*existing);
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
    auto& switching = shared_.inputMethodSwitchCoordinator();
    switching.onSwitch = [this](const std::string& label) {
        shared_.overlayHUDController().show(label, overlayDuration);
    };
    switching.dispatch(SwitchEvent::Start{});
}

} // namespace brindlex
