#pragma once

#include "app/Platform.h"
#include "platform/linux/AccessibleBrowserPages.h"
#include "platform/linux/AccessibleElementTree.h"
#include "platform/linux/DBusNotifications.h"
#include "platform/linux/DBusProgramInstances.h"
#include "platform/linux/DesktopApplicationBundles.h"
#include "platform/linux/DesktopEntries.h"
#include "platform/linux/DesktopInputSources.h"
#include "platform/linux/JsonFileUserDefaults.h"
#include "platform/linux/PosixProcessLaunching.h"
#include "platform/linux/QtMainThread.h"
#include "platform/linux/QtOverlayPanel.h"
#include "platform/linux/QtProgramActivation.h"
#include "platform/linux/RandRDisplayLink.h"
#include "platform/linux/SessionBus.h"
#include "platform/linux/X11ActiveWindow.h"
#include "platform/linux/X11ApplicationOpening.h"
#include "platform/linux/X11Connection.h"
#include "platform/linux/X11CursorReading.h"
#include "platform/linux/X11EventPermissions.h"
#include "platform/linux/X11EventPosting.h"
#include "platform/linux/X11EventTapping.h"
#include "platform/linux/X11InputStream.h"
#include "platform/linux/X11RunningApplications.h"
#include "platform/linux/X11WindowList.h"
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
    QtProgramActivation activation_;
    X11InputStream input_;
    X11EventPermissions eventPermissions_;
    X11EventTapping eventTapping_;
    X11EventPosting eventPosting_;
    RandRDisplayLink displayLink_;
    X11CursorReading cursor_;
    SerialQueue elementQueue_;
    AccessibleElementTree accessibility_;
    X11WindowList windows_;
    PosixProcessLaunching processes_;
    X11ApplicationOpening opening_;
    Platform abilities_;
};

} // namespace brindlex
