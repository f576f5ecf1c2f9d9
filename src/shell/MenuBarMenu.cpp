#include "shell/MenuBarMenu.h"

#include <utility>

namespace brindlex {
namespace {

StatusMenuEntry menuBarEntry(MenuBarItem item, std::string label, bool isEnabled = true)
{
    return {static_cast<int>(item), std::move(label), isEnabled};
}

} // namespace

std::vector<StatusMenuEntry> menuBarMenu(const StringCatalogue& strings, bool canCheckForUpdates)
{
    const StatusMenuEntry divider;
    return {
        menuBarEntry(MenuBarItem::checkForUpdates, strings.text<"menubar.checkForUpdates">(),
            canCheckForUpdates),
        divider,
        menuBarEntry(MenuBarItem::openApp, strings.text<"menubar.openApp">()),
        divider,
        menuBarEntry(MenuBarItem::quitApp, strings.text<"menubar.quitApp">()),
    };
}

} // namespace brindlex
