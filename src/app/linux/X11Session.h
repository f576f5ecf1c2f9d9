#pragma once

#include "platform/MainThread.h"
#include "platform/linux/applications/DesktopEntries.h"
#include "platform/linux/applications/X11RunningApplications.h"
#include "platform/linux/input/X11InputStream.h"
#include "platform/linux/windows/X11ActiveWindow.h"
#include "platform/linux/x11/X11Connection.h"

namespace brindlex {

/// What the providers for X11 share. Main thread only.
struct X11Session {
    X11Session(MainThread& mainThread, DesktopEntries& entries)
        : activeWindow(display), applications(display, activeWindow, entries), input(mainThread)
    {
    }

    X11Connection display;
    X11ActiveWindow activeWindow;
    X11RunningApplications applications;
    X11InputStream input;
};

} // namespace brindlex
