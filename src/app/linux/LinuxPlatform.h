#pragma once

#include "app/Platform.h"
#include "platform/linux/AccessibleBrowserPages.h"
#include "platform/linux/DBusNotifications.h"
#include "platform/linux/DBusProgramInstances.h"
#include "platform/linux/DesktopApplicationBundles.h"
#include "platform/linux/DesktopEntries.h"
#include "platform/linux/DesktopInputSources.h"
#include "platform/linux/JsonFileUserDefaults.h"
#include "platform/linux/QtMainThread.h"
#include "platform/linux/QtOverlayPanel.h"
#include "platform/linux/SessionBus.h"
#include "platform/linux/X11ActiveWindow.h"
#include "platform/linux/X11Connection.h"
#include "platform/linux/X11RunningApplications.h"
#include "platform/linux/XdgUserFolders.h"
#include "platform/posix/SerialQueue.h"

namespace brindlex {

/// The abilities of a Linux desktop under X11, one provider each. Made on the main thread, after
/// the application object; the arguments outlive it.
class LinuxPlatform {
public:
    LinuxPlatform(Clock& clock, XdgUserFolders& userFolders, AppGroupContainer& container);

    Platform& abilities() { return abilities_; }
    X11Connection& display() { return display_; }
    QtMainThread& mainThread() { return mainThread_; }
    QtOverlayPanel& overlayPanel() { return overlayPanel_; }

private:
    QtMainThread mainThread_;
    X11Connection display_;
    X11ActiveWindow activeWindow_;
    SerialQueue preferencesQueue_;
    JsonFileUserDefaults defaults_;
    SessionBus sessionBus_;
    DBusNotifications notifications_;
    DBusProgramInstances instances_;
    DesktopEntries desktopEntries_;
    X11RunningApplications applications_;
    DesktopApplicationBundles bundles_;
    DesktopInputSources inputSources_;
    SerialQueue browserQueue_;
    AccessibleBrowserPages browserPages_;
    QtOverlayPanel overlayPanel_;
    Platform abilities_;
};

} // namespace brindlex
