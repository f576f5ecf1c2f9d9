#pragma once

#include "platform/Platform.h"
#include "platform/linux/accessibility/AccessibleBrowserPages.h"
#include "platform/linux/accessibility/AccessibleElementTree.h"
#include "platform/linux/applications/DesktopApplicationBundles.h"
#include "platform/linux/applications/DesktopEntries.h"
#include "platform/linux/applications/X11RunningApplications.h"
#include "platform/linux/input/X11CursorReading.h"
#include "platform/linux/input/X11EventPermissions.h"
#include "platform/linux/input/X11EventPosting.h"
#include "platform/linux/input/X11EventTapping.h"
#include "platform/linux/input/X11InputStream.h"
#include "platform/linux/inputsources/DesktopInputSources.h"
#include "platform/linux/panels/QtOverlayPanel.h"
#include "platform/linux/panels/QtProgramActivation.h"
#include "platform/linux/panels/X11ApplicationOpening.h"
#include "platform/linux/preferences/JsonFileUserDefaults.h"
#include "platform/linux/system/DBusNotifications.h"
#include "platform/linux/system/DBusProgramInstances.h"
#include "platform/linux/system/PosixProcessLaunching.h"
#include "platform/linux/system/QtMainThread.h"
#include "platform/linux/system/SessionBus.h"
#include "platform/linux/system/XdgUserFolders.h"
#include "platform/linux/windows/RandRDisplayLink.h"
#include "platform/linux/windows/X11ActiveWindow.h"
#include "platform/linux/windows/X11WindowList.h"
#include "platform/linux/x11/X11Connection.h"
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
