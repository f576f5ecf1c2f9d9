#include "platform/simulated/SimulatedComputer.h"

namespace brindlex {

SimulatedComputer::SimulatedComputer(const SimulatedComputerSetup& setup)
    : services(setup.services), defaults(setup.journal), container({}, setup.journal),
      distributedNotifications(services->notifications, mainThread, setup.journal),
      instances(services->session, setup.bundleID, setup.journal), applications(setup.journal),
      inputSources(mainThread, setup.journal), browserPages(mainThread, setup.journal),
      overlayPanel(mainThread, setup.journal), activation(setup.journal),
      activationPolicy(setup.journal), programWindows(mainThread, activation, setup.journal),
      statusItem(setup.journal), eventPermissions(setup.journal), automation(setup.journal),
      input(setup.tapPlace, setup.journal), displayLink(setup.journal), processes(setup.journal),
      opening(setup.journal), loginItem(setup.journal), relaunching(setup.journal),
      platform_(platformWithInput(input, input))
{
}

Platform SimulatedComputer::platformWithInput(EventTapping& tapping, EventPosting& posting)
{
    return {
        .mainThread = mainThread,
        .clock = clock,
        .defaults = defaults,
        .userFolders = userFolders,
        .languages = languages,
        .container = container,
        .distributedNotifications = distributedNotifications,
        .instances = instances,
        .applications = applications,
        .bundles = bundles,
        .icons = icons,
        .inputSources = inputSources,
        .browserPages = browserPages,
        .overlayPanel = overlayPanel,
        .activation = activation,
        .activationPolicy = activationPolicy,
        .programWindows = programWindows,
        .statusItem = statusItem,
        .sessionLock = sessionLock,
        .eventPermissions = eventPermissions,
        .automation = automation,
        .eventTapping = tapping,
        .eventPosting = posting,
        .displayLink = displayLink,
        .displayScale = displayScale,
        .cursor = cursor,
        .accessibility = accessibility,
        .windows = windows,
        .processes = processes,
        .opening = opening,
        .program = program,
        .loginItem = loginItem,
        .relaunching = relaunching,
        .network = network,
        .pasteboard = pasteboard,
        .images = images,
        .pasting = pasting_,
        .activating = activating,
        .keyablePanel = keyablePanel,
        .screens = screens,
        .previewing = previewing,
        .historyQueue = historyQueue,
    };
}

} // namespace brindlex
