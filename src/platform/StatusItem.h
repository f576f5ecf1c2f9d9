#pragma once

#include "foundation/Observable.h"
#include "foundation/Subscription.h"

#include <functional>
#include <string>
#include <vector>

namespace brindlex {

/// An entry of a status item's menu: an item that can be chosen, or a divider between items.
struct StatusMenuEntry {
    /// What a choice is known by: above 0, and that of no other item of the menu. 0 is a divider.
    int id = 0;
    std::string label{};
    bool isEnabled = true;

    bool isDivider() const { return id == 0; }
    bool operator==(const StatusMenuEntry&) const = default;
};

/// What the user finds at the program's icon.
struct StatusItemContents {
    /// Shown beside the pointer, and read to whoever does not see the icon.
    std::string title{};
    /// From top to bottom.
    std::vector<StatusMenuEntry> menu{};

    bool operator==(const StatusItemContents&) const = default;
};

/// The program's icon among those of the programs in the background, with a menu: in the menu bar,
/// or in the tray of a panel. Main thread only.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// Shows the icon with these contents, or changes those of the icon that is there. Where the
    /// desktop has no place for it, or has one no more, it comes as soon as there is one.
    virtual void show(const StatusItemContents& contents) = 0;

    /// Takes the icon away; nothing happens when it is not there.
    virtual void hide() = 0;

    /// Whether the desktop shows the icon somewhere, as far as it says so.
    virtual const Observable<bool>& isOnDesktop() const = 0;

    /// Notifies of each primary click on the icon. A desktop may open the menu instead.
    virtual Subscription observeActivation(std::function<void()> handler) = 0;

    /// Notifies of each item that the user chooses, by its id; of enabled ones of the present menu
    /// alone.
    virtual Subscription observeChoice(std::function<void(int id)> handler) = 0;
};

/// Whether the menu has an enabled item of that id.
inline bool canChoose(const std::vector<StatusMenuEntry>& menu, int id)
{
    for (const auto& entry : menu)
        if (entry.id == id)
            return !entry.isDivider() && entry.isEnabled;
    return false;
}

} // namespace brindlex
