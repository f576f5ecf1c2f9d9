#pragma once

#include "platform/linux/system/SessionBus.h"
#include "platform/linux/tray/TrayStatusItem.h"
#include "support/loops/LoopUntil.h"
#include "support/tray/DockTray.h"
#include "support/tray/TrayHost.h"

#include <QApplication>
#include <QMenu>
#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

namespace brindlex {

/// An icon on a desktop that has the one kind of tray, the other, both or none.
class TrayStatusItemFixture : public testing::Test {
protected:
    ~TrayStatusItemFixture() override
    {
        if (auto* const menu = QApplication::activePopupWidget())
            menu->close();
    }

    void show() { item.show({"Program", {{1, "Open"}, {}, {2, "Quit"}}}); }
    bool until(
        const std::function<bool()>& condition, std::chrono::milliseconds deadline = usualDeadline)
    {
        return loopUntil(
            [&] {
                if (host)
                    host->items();
                if (tray)
                    tray->icons();
                return condition();
            },
            deadline);
    }
    bool isAtHost() { return host && host->items().size() == 1; }
    bool isInTray() { return tray && tray->icons().size() == 1; }
    bool isAtHostAlone()
    {
        return until([this] { return isAtHost() && !isInTray() && isOnDesktop(); });
    }
    bool isInTrayAlone()
    {
        return until([this] { return isInTray() && isOnDesktop(); });
    }
    bool isOnDesktop() const { return item.isOnDesktop().value(); }

    XConnection server;
    X11Connection display;
    SessionBus bus;
    TrayStatusItem item{display, bus.connection(), "org.example.Program"};
    std::optional<TrayHost> host;
    std::optional<DockTray> tray;
    std::vector<bool> presences;
    Subscription presence
        = item.isOnDesktop().subscribe([this](bool isThere) { presences.push_back(isThere); });
};

} // namespace brindlex
