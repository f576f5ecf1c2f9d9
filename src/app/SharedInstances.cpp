#include "app/SharedInstances.h"

namespace brindlex {
namespace {

template <typename Instance, typename... Arguments>
Instance& shared(std::unique_ptr<Instance>& instance, Arguments&&... arguments)
{
    if (!instance)
        instance = std::make_unique<Instance>(std::forward<Arguments>(arguments)...);
    return *instance;
}

} // namespace

SharedInstances::SharedInstances(Platform& platform)
    : platform_(platform), preferences_(platform.defaults, platform.userFolders),
      changesOfOthers_(platform.defaults.observeChanges([this] { reloadStores(); }))
{
}

void SharedInstances::reloadStores()
{
    if (inputMethodConfigStore_)
        inputMethodConfigStore_->reload();
    if (smartInputMethodConfigStore_)
        smartInputMethodConfigStore_->reload();
    if (mouseConfigStore_)
        mouseConfigStore_->reload();
}

InputMethodConfigStore& SharedInstances::inputMethodConfigStore()
{
    return shared(inputMethodConfigStore_, platform_.defaults);
}

SmartInputMethodConfigStore& SharedInstances::smartInputMethodConfigStore()
{
    return shared(smartInputMethodConfigStore_, platform_.defaults);
}

OverlayHUDController& SharedInstances::overlayHUDController()
{
    return shared(overlayHUDController_, platform_.overlayPanel, platform_.mainThread);
}

InputMethodSwitchCoordinator& SharedInstances::inputMethodSwitchCoordinator()
{
    return shared(inputMethodSwitchCoordinator_, inputMethodConfigStore(),
        smartInputMethodConfigStore(),
        SwitchAbilities{platform_.mainThread, platform_.clock, platform_.applications,
            platform_.bundles, platform_.inputSources, platform_.browserPages});
}

MouseConfigStore& SharedInstances::mouseConfigStore()
{
    return shared(mouseConfigStore_, platform_.defaults);
}

GlobalEventTap& SharedInstances::globalEventTap()
{
    return shared(
        globalEventTap_, platform_.eventTapping, platform_.eventPermissions, platform_.activation);
}

TapEnvironment SharedInstances::tapEnvironment()
{
    return {
        globalEventTap(), platform_.eventPermissions, platform_.mainThread, platform_.activation};
}

SpaceSwitcher& SharedInstances::spaceSwitcher()
{
    return shared(spaceSwitcher_, platform_.eventPosting, platform_.displayLink,
        platform_.mainThread, platform_.clock);
}

MouseActionDispatcher& SharedInstances::mouseActionDispatcher()
{
    return shared(mouseActionDispatcher_, platform_.eventPosting, platform_.opening,
        platform_.processes, spaceSwitcher());
}

MouseResizeCursorDetector& SharedInstances::mouseResizeCursorDetector()
{
    return shared(
        mouseResizeCursorDetector_, platform_.cursor, platform_.accessibility, platform_.windows);
}

MouseClickManager& SharedInstances::mouseClickManager()
{
    return shared(
        mouseClickManager_, mouseConfigStore().config(), tapEnvironment(), mouseActionDispatcher());
}

MouseGestureManager& SharedInstances::mouseGestureManager()
{
    return shared(mouseGestureManager_, mouseConfigStore().config(), tapEnvironment(),
        MouseGestureManager::Abilities{platform_.eventPosting, mouseActionDispatcher(),
            mouseResizeCursorDetector(), platform_.clock});
}

MouseScrollManager& SharedInstances::mouseScrollManager()
{
    return shared(mouseScrollManager_, mouseConfigStore().config(), tapEnvironment(),
        MouseScrollManager::Abilities{platform_.eventPosting, platform_.applications,
            platform_.displayLink, platform_.clock});
}

} // namespace brindlex
