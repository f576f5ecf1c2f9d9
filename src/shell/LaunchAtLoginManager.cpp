#include "shell/LaunchAtLoginManager.h"

#include "log/Log.h"
#include "shell/ShellPreferenceKeys.h"

namespace brindlex {
namespace {

using Status = LoginItem::Status;

} // namespace

LaunchAtLoginManager::LaunchAtLoginManager(
    UserDefaults& defaults, LoginItem& item, ProgramActivation& activation)
    : defaults_(defaults), item_(item), activation_(activation)
{
}

void LaunchAtLoginManager::beginObserving()
{
    reconcile();
    becomingActive_ = activation_.observeDidBecomeActive([this] { reconcile(); });
}

void LaunchAtLoginManager::reconcile()
{
    const auto key = ShellPreferenceKeys().launchAtLogin;
    const bool isEnabled = item_.status() == Status::enabled;
    if (isEnabled != readPreference(defaults_, key))
        writePreference(defaults_, key, isEnabled);
}

void LaunchAtLoginManager::setEnabled(bool isEnabled)
{
    const auto wanted = isEnabled ? Status::enabled : Status::notRegistered;
    if (item_.status() == wanted)
        return;
    const auto result = isEnabled ? item_.registerProgram() : item_.unregisterProgram();
    if (result)
        return;
    Log::error(std::string("The start at login cannot be switched ")
            + (isEnabled ? "on: " : "off: ") + result.error(),
        logCategory::lifecycle);
    reconcile();
}

} // namespace brindlex
