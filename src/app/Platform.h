#pragma once

#include "platform/AppGroupContainer.h"
#include "platform/ApplicationBundles.h"
#include "platform/BrowserPageReading.h"
#include "platform/Clock.h"
#include "platform/DistributedNotifications.h"
#include "platform/KeyboardInputSources.h"
#include "platform/MainThread.h"
#include "platform/OverlayPanel.h"
#include "platform/ProgramInstances.h"
#include "platform/RunningApplications.h"
#include "platform/UserDefaults.h"
#include "platform/UserFolders.h"

namespace brindlex {

/// The abilities of one computer, as a provider offers them. They outlive the program's parts.
struct Platform {
    MainThread& mainThread;
    Clock& clock;
    UserDefaults& defaults;
    UserFolders& userFolders;
    AppGroupContainer& container;
    DistributedNotifications& distributedNotifications;
    ProgramInstances& instances;
    RunningApplications& applications;
    ApplicationBundles& bundles;
    KeyboardInputSources& inputSources;
    BrowserPageReading& browserPages;
    OverlayPanel& overlayPanel;
};

} // namespace brindlex
