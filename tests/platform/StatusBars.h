#pragma once

#include "platform/linux/system/SessionBus.h"
#include "platform/linux/tray/TrayStatusItem.h"
#include "platform/simulated/SimulatedStatusItem.h"
#include "support/hardware/PlayedInput.h"
#include "support/loops/LoopUntil.h"
#include "support/tray/DockTray.h"
#include "support/tray/TrayHost.h"

#include <QApplication>
#include <QMenu>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// A menu as the user sees it: of an item its label, in brackets when it cannot be chosen, of a
/// divider a dash.
using SeenMenu = std::vector<std::string>;

inline std::string seenEntry(std::string label, bool isEnabled, bool isDivider)
{
    if (isDivider)
        return "-";
    return isEnabled ? label : "(" + label + ")";
}

/// The label without what keeps a character of it from marking a letter.
inline std::string withoutDoubles(std::string label, const std::string& character)
{
    for (auto at = label.find(character + character); at != std::string::npos;
         at = label.find(character + character, at + 1))
        label.erase(at, 1);
    return label;
}

/// Icons in memory.
class SimulatedStatusBar {
public:
    SimulatedStatusBar() { item_.setPlace(false); }

    StatusItem& item() { return item_; }
    void come() { item_.setPlace(true); }
    void go() { item_.setPlace(false); }
    bool isEmpty() { return !item_.isOnDesktop().value(); }
    std::string title() { return item_.contents()->title; }
    SeenMenu menu()
    {
        SeenMenu seen;
        for (const auto& [id, label, isEnabled] : item_.contents()->menu)
            seen.push_back(seenEntry(label, isEnabled, id == 0));
        return seen;
    }
    void click() { item_.click(); }
    void choose(const std::string& label)
    {
        const auto menu = item_.contents()->menu;
        for (const auto& entry : menu)
            if (entry.label == label)
                item_.choose(entry.id);
    }
    bool until(const std::function<bool()>& condition) { return condition(); }

private:
    SimulatedStatusItem item_;
};

/// A bus with a host that draws the icon.
class NotifierStatusBar {
public:
    StatusItem& item() { return item_; }
    void come() { host_.emplace(); }
    void go() { host_.reset(); }
    bool isEmpty() { return host_->items().empty(); }
    std::string title() { return host_->properties()["Title"]; }
    SeenMenu menu()
    {
        SeenMenu seen;
        for (const auto& [label, isEnabled, isDivider] : host_->menu())
            seen.push_back(seenEntry(withoutDoubles(label, "_"), isEnabled, isDivider));
        return seen;
    }
    void click() { host_->activate(); }
    void choose(const std::string& label)
    {
        loopUntil([&] { return !host_->menu().empty(); });
        host_->choose(label);
    }
    bool until(const std::function<bool()>& condition)
    {
        return loopUntil([&] {
            if (host_)
                host_->items();
            return condition();
        });
    }

private:
    SessionBus bus_;
    X11Connection display_;
    TrayStatusItem item_{display_, bus_.connection(), "org.example.Program"};
    std::optional<TrayHost> host_;
};

/// A tray that takes the icon in as a window; the menu is the program's own.
class DockStatusBar {
public:
    ~DockStatusBar()
    {
        if (auto* const menu = openMenu())
            menu->close();
    }

    StatusItem& item() { return item_; }
    void come() { tray_.emplace(); }
    void go() { tray_.reset(); }
    bool isEmpty() { return tray_->icons().empty(); }
    std::string title() { return server_.text(tray_->icons().front(), "_NET_WM_NAME"); }
    SeenMenu menu()
    {
        SeenMenu seen;
        for (const auto* action : openedMenu().actions())
            seen.push_back(seenEntry(withoutDoubles(action->text().toStdString(), "&"),
                action->isEnabled(), action->isSeparator()));
        openedMenu().close();
        return seen;
    }
    void click() { input_.click(tray_->iconArea().centreX(), tray_->iconArea().centreY()); }
    void choose(const std::string& label)
    {
        auto& menu = openedMenu();
        for (auto* action : menu.actions())
            if (action->text().toStdString() == label) {
                const auto place = menu.mapToGlobal(menu.actionGeometry(action).center());
                input_.click(place.x(), place.y());
                return;
            }
    }
    bool until(const std::function<bool()>& condition)
    {
        return loopUntil([&] {
            if (tray_)
                tray_->icons();
            return condition();
        });
    }

private:
    static QMenu* openMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    QMenu& openedMenu()
    {
        if (!openMenu())
            input_.click(tray_->iconArea().centreX(), tray_->iconArea().centreY(), 3);
        loopUntil([] { return openMenu() && openMenu()->isVisible(); });
        return *openMenu();
    }

    XConnection server_;
    PlayedInput input_{server_};
    SessionBus bus_{std::string()};
    X11Connection display_;
    TrayStatusItem item_{display_, bus_.connection(), "org.example.Program"};
    std::optional<DockTray> tray_;
};

} // namespace brindlex
