#include "shell/MenuBarExtra.h"

#include "log/Log.h"
#include "shell/MenuBarMenu.h"

#include <utility>

namespace brindlex {
namespace {

/// How long a desktop may take to bring its panel up, or to replace it.
constexpr Seconds timeForPanel = 5;

} // namespace

MenuBarExtra::MenuBarExtra(StatusItem& icon, MainThread& mainThread, SoftwareUpdateManager& updates,
    const StringCatalogue& strings, std::string title, Actions actions)
    : icon_(icon), mainThread_(mainThread), updates_(updates), strings_(strings),
      title_(std::move(title)), actions_(std::move(actions))
{
}

void MenuBarExtra::start()
{
    activation_ = icon_.observeActivation(actions_.openApp);
    choice_ = icon_.observeChoice([this](int item) { perform(item); });
    updateChanges_ = updates_.canCheckForUpdates().stream().withoutRepeats().subscribe(
        [this](bool can) { show(can); });
    presence_
        = icon_.isOnDesktop().subscribe([this](bool isOnDesktop) { followPresence(isOnDesktop); });
}

void MenuBarExtra::stop()
{
    updateChanges_.reset();
    presence_.reset();
    absence_.reset();
    choice_.reset();
    activation_.reset();
    icon_.hide();
}

void MenuBarExtra::show(bool canCheckForUpdates)
{
    icon_.show({title_, menuBarMenu(strings_, canCheckForUpdates)});
}

void MenuBarExtra::perform(int item)
{
    switch (static_cast<MenuBarItem>(item)) {
    case MenuBarItem::checkForUpdates:
        return updates_.checkForUpdates();
    case MenuBarItem::openApp:
        return actions_.openApp();
    case MenuBarItem::quitApp:
        return actions_.quitApp();
    }
}

void MenuBarExtra::followPresence(bool isOnDesktop)
{
    absence_.reset();
    if (!isOnDesktop && !hasNotedAbsence_)
        absence_ = mainThread_.after(timeForPanel, [this] { noteAbsence(); });
}

void MenuBarExtra::noteAbsence()
{
    hasNotedAbsence_ = true;
    Log::info(
        "No tray shows the icon; starting Brindlex again opens its window", logCategory::lifecycle);
}

} // namespace brindlex
