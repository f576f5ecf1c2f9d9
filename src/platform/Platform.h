#pragma once

#include "platform/AccessibilityTree.h"
#include "platform/ActivationPolicy.h"
#include "platform/AppGroupContainer.h"
#include "platform/ApplicationActivating.h"
#include "platform/ApplicationBundles.h"
#include "platform/ApplicationOpening.h"
#include "platform/AutomationPermission.h"
#include "platform/BackgroundQueue.h"
#include "platform/BrowserPageReading.h"
#include "platform/Clock.h"
#include "platform/CursorReading.h"
#include "platform/DisplayLink.h"
#include "platform/DisplayScale.h"
#include "platform/DistributedNotifications.h"
#include "platform/EventPermissions.h"
#include "platform/EventPosting.h"
#include "platform/EventTap.h"
#include "platform/FilePreviewing.h"
#include "platform/HttpReading.h"
#include "platform/IconRendering.h"
#include "platform/ImageConverting.h"
#include "platform/KeyablePanel.h"
#include "platform/KeyboardInputSources.h"
#include "platform/LoginItem.h"
#include "platform/MainThread.h"
#include "platform/OverlayPanel.h"
#include "platform/Pasteboard.h"
#include "platform/Pasting.h"
#include "platform/ProcessLaunching.h"
#include "platform/ProgramActivation.h"
#include "platform/ProgramBundle.h"
#include "platform/ProgramInstances.h"
#include "platform/ProgramRelaunching.h"
#include "platform/ProgramWindows.h"
#include "platform/RunningApplications.h"
#include "platform/ScreenReading.h"
#include "platform/SessionLock.h"
#include "platform/StatusItem.h"
#include "platform/UserDefaults.h"
#include "platform/UserFolders.h"
#include "platform/WindowList.h"

#include <string>
#include <vector>

namespace brindlex {

/// The abilities of one computer, as a provider offers them. They outlive the program's parts.
struct Platform {
    MainThread& mainThread;
    Clock& clock;
    UserDefaults& defaults;
    UserFolders& userFolders;
    /// Those that the system is set to, the preferred one first, as in "de_AT.UTF-8".
    const std::vector<std::string>& languages;
    AppGroupContainer& container;
    DistributedNotifications& distributedNotifications;
    ProgramInstances& instances;
    RunningApplications& applications;
    ApplicationBundles& bundles;
    IconRendering& icons;
    KeyboardInputSources& inputSources;
    BrowserPageReading& browserPages;
    OverlayPanel& overlayPanel;
    ProgramActivation& activation;
    ActivationPolicySetting& activationPolicy;
    ProgramWindows& programWindows;
    StatusItem& statusItem;
    SessionLock& sessionLock;
    EventPermissions& eventPermissions;
    AutomationPermission& automation;
    EventTapping& eventTapping;
    EventPosting& eventPosting;
    DisplayLink& displayLink;
    DisplayScale& displayScale;
    CursorReading& cursor;
    AccessibilityTree& accessibility;
    WindowList& windows;
    ProcessLaunching& processes;
    ApplicationOpening& opening;
    const ProgramBundle& program;
    LoginItem& loginItem;
    ProgramRelaunching& relaunching;
    HttpReading& network;
    Pasteboard& pasteboard;
    ImageConverting& images;
    Pasting& pasting;
    ApplicationActivating& activating;
    KeyablePanel& keyablePanel;
    ScreenReading& screens;
    FilePreviewing& previewing;
    /// Writes the clipboard history.
    BackgroundQueue& historyQueue;
};

} // namespace brindlex
