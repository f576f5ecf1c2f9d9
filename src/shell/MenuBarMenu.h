#pragma once

#include "catalogue/StringCatalogue.h"
#include "platform/StatusItem.h"

#include <vector>

namespace brindlex {

/// What can be chosen at the program's icon, by the id of its entry.
enum class MenuBarItem {
    checkForUpdates = 1,
    openApp,
    quitApp,
};

/// The menu of the program's icon in the language of the texts: each group of items, and a divider
/// before every group but the first.
std::vector<StatusMenuEntry> menuBarMenu(const StringCatalogue& strings, bool canCheckForUpdates);

} // namespace brindlex
