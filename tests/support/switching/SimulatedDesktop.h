#pragma once

#include "app/ProgramIdentity.h"
#include "platform/Platform.h"
#include "platform/simulated/SimulatedAccessibilityTree.h"
#include "platform/simulated/SimulatedAppGroupContainer.h"
#include "platform/simulated/SimulatedApplicationBundles.h"
#include "platform/simulated/SimulatedApplicationOpening.h"
#include "platform/simulated/SimulatedApplications.h"
#include "platform/simulated/SimulatedBrowserPages.h"
#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedCursor.h"
#include "platform/simulated/SimulatedDisplayLink.h"
#include "platform/simulated/SimulatedEventPermissions.h"
#include "platform/simulated/SimulatedInput.h"
#include "platform/simulated/SimulatedInputSources.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "platform/simulated/SimulatedNotifications.h"
#include "platform/simulated/SimulatedOverlayPanel.h"
#include "platform/simulated/SimulatedProcessLaunching.h"
#include "platform/simulated/SimulatedProgramActivation.h"
#include "platform/simulated/SimulatedProgramInstances.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "platform/simulated/SimulatedUserFolders.h"
#include "platform/simulated/SimulatedWindowList.h"

namespace brindlex {

/// What the processes of one simulated session share.
struct SimulatedSessionServices {
    SimulatedSession session;
    SimulatedNotificationBus notifications;
};

/// The whole simulated computer as one process of the program sees it.
struct SimulatedDesktop {
    explicit SimulatedDesktop(SimulatedSessionServices& services)
        : notifications(services.notifications, mainThread),
          instances(services.session, programIdentity::bundleIdentifier)
    {
    }

    SimulatedClock clock;
    SimulatedMainThread mainThread{clock};
    SimulatedUserDefaults defaults;
    SimulatedUserFolders userFolders;
    SimulatedAppGroupContainer container;
    SimulatedNotifications notifications;
    SimulatedProgramInstances instances;
    SimulatedApplications applications;
    SimulatedApplicationBundles bundles;
    SimulatedInputSources inputSources{mainThread};
    SimulatedBrowserPages browserPages{mainThread};
    SimulatedOverlayPanel overlayPanel{mainThread};
    SimulatedProgramActivation activation;
    SimulatedEventPermissions eventPermissions;
    SimulatedInput input;
    SimulatedDisplayLink displayLink;
    SimulatedCursor cursor;
    SimulatedAccessibilityTree accessibility;
    SimulatedWindowList windows;
    SimulatedProcessLaunching processes;
    SimulatedApplicationOpening opening;

    Platform platform{mainThread, clock, defaults, userFolders, container, notifications, instances,
        applications, bundles, inputSources, browserPages, overlayPanel, activation,
        eventPermissions, input, input, displayLink, cursor, accessibility, windows, processes,
        opening};
};

} // namespace brindlex
