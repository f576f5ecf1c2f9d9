#pragma once

#include "platform/linux/preferences/JsonFileUserDefaults.h"
#include "platform/linux/system/DBusNotifications.h"
#include "platform/linux/system/DBusProgramInstances.h"
#include "platform/linux/system/QtMainThread.h"
#include "platform/linux/system/SessionBus.h"
#include "platform/linux/system/XdgUserFolders.h"
#include "platform/posix/SerialQueue.h"

namespace brindlex {

/// What a process needs of the user's session before it knows whether it is to run at all: the
/// preferences, and what other processes there are. Made on the main thread, after the application
/// object; the folders outlive it.
struct LinuxSession {
    explicit LinuxSession(XdgUserFolders& folders);

    XdgUserFolders& userFolders;
    QtMainThread mainThread;
    SessionBus bus;
    SerialQueue preferencesQueue;
    JsonFileUserDefaults preferences;
    DBusNotifications notifications;
    DBusProgramInstances instances;
};

} // namespace brindlex
