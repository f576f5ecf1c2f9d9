#pragma once

#include "foundation/Subscribers.h"
#include "platform/StatusItem.h"
#include "platform/linux/tray/BusMenu.h"
#include "platform/linux/tray/DockingTray.h"
#include "platform/linux/tray/NotifierItem.h"
#include "platform/linux/tray/NotifierRegistration.h"
#include "platform/linux/tray/TrayMenu.h"

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <string>

namespace brindlex {

/// The icon in the tray of a panel: as a StatusNotifierItem, which the panel draws, and where no
/// host of those is there, as a window of its own in a tray of the X server. It changes over from
/// one to the other as they come and go.
///
/// On the bus the item is `org.kde.StatusNotifierItem-<process>-1`. All that is
/// notified is notified from the loop, so that handlers may hide the icon. Made after the
/// application object; both connections outlive it.
class TrayStatusItem : public StatusItem {
public:
    /// `id` names the program to hosts, whatever its language.
    TrayStatusItem(X11Connection& display, QDBusConnection bus, std::string id);
    ~TrayStatusItem() override;
    TrayStatusItem(const TrayStatusItem&) = delete;
    TrayStatusItem& operator=(const TrayStatusItem&) = delete;

    void show(const StatusItemContents& contents) override;
    void hide() override;
    const Observable<bool>& isOnDesktop() const override { return isOnDesktop_; }
    Subscription observeActivation(std::function<void()> handler) override;
    Subscription observeChoice(std::function<void(int id)> handler) override;

private:
    /// What is there as long as the icon is shown.
    struct Shown;

    void begin();
    void followNotifier();
    void update();
    void press(int button);
    void hover(bool isOver);
    void showTitle() const;
    void openMenu();
    void activate();
    void choose(int id);
    void later(std::function<void()> work);

    X11Connection& display_;
    QDBusConnection bus_;
    const std::string id_;
    StatusItemContents contents_;
    Observable<bool> isOnDesktop_{false};
    Subscribers<std::function<void()>> activations_;
    Subscribers<std::function<void(int)>> choices_;
    TrayMenu menu_;
    QTimer toolTip_;
    std::unique_ptr<Shown> shown_;
};

} // namespace brindlex
