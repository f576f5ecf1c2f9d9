#include "app/SingleInstanceManager.h"

#include "app/ProgramIdentity.h"

namespace brindlex {

SingleInstanceManager::SingleInstanceManager(ProgramInstances& instances)
    : instances_(instances) { }

std::optional<ProgramInstances::ProcessIdentifier> SingleInstanceManager::existingInstance() const
{
    for (const auto instance : instances_.running(programIdentity::bundleIdentifier))
        if (instance != instances_.current())
            return instance;
    return {};
}

std::optional<ProgramInstances::ProcessIdentifier> SingleInstanceManager::instanceToYieldTo(
    const Preferences& preferences) const
{
    if (preferences.read(&UserDefaultPreferenceKeys::shouldRestoreFocusAfterLanguageRelaunch))
        return {};
    return existingInstance();
}

void SingleInstanceManager::wake(
    ProgramInstances::ProcessIdentifier instance, DistributedNotifications& notifications) const
{
    notifications.post(programIdentity::showMainWindow, programIdentity::bundleIdentifier);
    instances_.activate(instance);
}

} // namespace brindlex
