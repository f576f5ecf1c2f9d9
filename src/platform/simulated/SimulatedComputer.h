#pragma once

#include "platform/Platform.h"
#include "platform/simulated/SimulatedAccessibilityTree.h"
#include "platform/simulated/SimulatedActivationPolicy.h"
#include "platform/simulated/SimulatedAppGroupContainer.h"
#include "platform/simulated/SimulatedApplicationActivating.h"
#include "platform/simulated/SimulatedApplicationBundles.h"
#include "platform/simulated/SimulatedApplicationOpening.h"
#include "platform/simulated/SimulatedApplications.h"
#include "platform/simulated/SimulatedAutomationPermission.h"
#include "platform/simulated/SimulatedBrowserPages.h"
#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedCursor.h"
#include "platform/simulated/SimulatedDisplayLink.h"
#include "platform/simulated/SimulatedDisplayScale.h"
#include "platform/simulated/SimulatedEventPermissions.h"
#include "platform/simulated/SimulatedFilePreviewing.h"
#include "platform/simulated/SimulatedHttpReading.h"
#include "platform/simulated/SimulatedIconRendering.h"
#include "platform/simulated/SimulatedImageConverting.h"
#include "platform/simulated/SimulatedInput.h"
#include "platform/simulated/SimulatedInputSources.h"
#include "platform/simulated/SimulatedJournal.h"
#include "platform/simulated/SimulatedKeyablePanel.h"
#include "platform/simulated/SimulatedKeyboard.h"
#include "platform/simulated/SimulatedLoginItem.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "platform/simulated/SimulatedMouse.h"
#include "platform/simulated/SimulatedNotifications.h"
#include "platform/simulated/SimulatedOverlayPanel.h"
#include "platform/simulated/SimulatedPasteboard.h"
#include "platform/simulated/SimulatedPasting.h"
#include "platform/simulated/SimulatedProcessLaunching.h"
#include "platform/simulated/SimulatedProgramActivation.h"
#include "platform/simulated/SimulatedProgramInstances.h"
#include "platform/simulated/SimulatedProgramRelaunching.h"
#include "platform/simulated/SimulatedProgramWindows.h"
#include "platform/simulated/SimulatedQueue.h"
#include "platform/simulated/SimulatedScreenReading.h"
#include "platform/simulated/SimulatedSessionLock.h"
#include "platform/simulated/SimulatedStatusItem.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "platform/simulated/SimulatedUserFolders.h"
#include "platform/simulated/SimulatedWindowList.h"

#include <memory>
#include <string>
#include <vector>

namespace brindlex {

/// What the processes of one simulated session share.
struct SimulatedSessionServices {
    SimulatedSession session{};
    SimulatedNotificationBus notifications{};
};

/// What a simulated computer is made with.
struct SimulatedComputerSetup {
    /// A session of its own, unless processes are to share one.
    std::shared_ptr<SimulatedSessionServices> services
        = std::make_shared<SimulatedSessionServices>();
    /// The program that the process runs.
    std::string bundleID = "org.example.Program";
    SimulatedInput::TapPlace tapPlace = SimulatedInput::TapPlace::session;
    /// Records what the process asks of the computer, if there is one; outlives the computer.
    SimulatedJournal* journal = nullptr;
};

/// A whole computer in memory, as one process sees it: each ability under its name in `Platform`,
/// and the devices that make the input. It has no sources, applications, windows or container until
/// a test gives it some. Main thread only.
class SimulatedComputer {
public:
    explicit SimulatedComputer(const SimulatedComputerSetup& setup = {});
    SimulatedComputer(const SimulatedComputer&) = delete;
    SimulatedComputer& operator=(const SimulatedComputer&) = delete;

    Platform& platform() { return platform_; }

    /// The same computer with another input, such as a real one.
    Platform platformWithInput(EventTapping& tapping, EventPosting& posting);

    const std::shared_ptr<SimulatedSessionServices> services;
    SimulatedClock clock;
    SimulatedMainThread mainThread{clock};
    SimulatedUserDefaults defaults;
    SimulatedUserFolders userFolders;
    std::vector<std::string> languages;
    SimulatedAppGroupContainer container;
    SimulatedNotifications distributedNotifications;
    SimulatedProgramInstances instances;
    SimulatedApplications applications;
    SimulatedApplicationBundles bundles;
    SimulatedIconRendering icons;
    SimulatedInputSources inputSources;
    SimulatedBrowserPages browserPages;
    SimulatedOverlayPanel overlayPanel;
    SimulatedProgramActivation activation;
    SimulatedActivationPolicy activationPolicy;
    SimulatedProgramWindows programWindows;
    SimulatedStatusItem statusItem;
    SimulatedSessionLock sessionLock;
    SimulatedEventPermissions eventPermissions;
    SimulatedAutomationPermission automation;
    SimulatedInput input;
    SimulatedMouse mouse{input};
    SimulatedKeyboard keyboard{input};
    SimulatedDisplayLink displayLink;
    SimulatedDisplayScale displayScale;
    SimulatedCursor cursor;
    SimulatedAccessibilityTree accessibility;
    SimulatedWindowList windows;
    SimulatedProcessLaunching processes;
    SimulatedApplicationOpening opening;
    ProgramBundle program{.name = "Program", .shortVersion = "1.0.0"};
    SimulatedLoginItem loginItem;
    SimulatedProgramRelaunching relaunching;
    SimulatedHttpReading network{mainThread};
    SimulatedPasteboard pasteboard{mainThread};
    SimulatedImageConverting images;
    SimulatedApplicationActivating activating{applications};
    SimulatedKeyablePanel keyablePanel{mainThread};
    SimulatedScreenReading screens;
    SimulatedFilePreviewing previewing;
    SimulatedQueue historyQueue{SimulatedQueue::Mode::atOnce};

private:
    SimulatedPasting pasting_{input};
    Platform platform_;
};

} // namespace brindlex
