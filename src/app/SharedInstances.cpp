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

} // namespace brindlex
