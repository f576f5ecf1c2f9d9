#pragma once

#include "platform/UserDefaults.h"
#include "shell/MainWindowTab.h"
#include "ui/controls/TabStrip.h"
#include "ui/controls/ViewContext.h"

#include <QWidget>

#include <functional>
#include <map>

class QStackedWidget;

namespace brindlex {

/// The main window: its tabs, and the screen of the one that is selected. Which that is stands in
/// the preferences. A screen is made when its tab is selected first; its arguments outlive it.
class MainWindow : public QWidget {
public:
    /// Makes the screen of a tab.
    using ScreenMaking = std::function<QWidget*()>;
    using Screens = std::map<MainWindowTab, ScreenMaking>;

    /// A tab without a screen says that it is not there yet.
    MainWindow(const ViewContext& context, UserDefaults& defaults, Screens screens);

    MainWindowTab selection() const;
    void select(MainWindowTab tab);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addTabs();
    void showScreen(int index);
    QWidget* makeScreen(MainWindowTab tab) const;

    const ViewContext context_;
    UserDefaults& defaults_;
    const Screens screens_;
    TabStrip* const tabs_;
    QStackedWidget* const stack_;
    std::map<int, QWidget*> made_;
    Subscription changes_;
};

} // namespace brindlex
