#include "app/linux/LinuxPlatform.h"

#include "app/ProgramIdentity.h"
#include "platform/linux/windows/X11WindowActivation.h"

namespace brindlex {

LinuxPlatform::LinuxPlatform(
    Clock& clock, XdgUserFolders& userFolders, AppGroupContainer& container)
    : activeWindow_(display_), preferencesQueue_("Brindlex.Prefs"),
      defaults_(
          userFolders.configHome() / (std::string(programIdentity::bundleIdentifier) + ".json"),
          mainThread_, preferencesQueue_),
      notifications_(sessionBus_),
      instances_(sessionBus_, programIdentity::bundleIdentifier,
          [this](auto process) { activateWindowsOf(display_, process); }),
      desktopEntries_(DesktopEntries::ofUser()),
      applications_(display_, activeWindow_, desktopEntries_), bundles_(desktopEntries_),
      inputSources_(display_, sessionBus_.connection()), browserQueue_("Brindlex.AX"),
      browserPages_(mainThread_, clock, browserQueue_, [this] { return activeWindow_.current(); }),
      overlayPanel_(display_), input_(mainThread_), eventPermissions_(input_, defaults_),
      eventTapping_(input_), eventPosting_(input_, mainThread_, clock),
      displayLink_(display_, mainThread_, clock), cursor_(display_), elementQueue_("Brindlex.Elem"),
      accessibility_(display_, elementQueue_), windows_(display_), processes_(mainThread_),
      opening_(display_, activeWindow_, applications_), abilities_{
                                                            .mainThread = mainThread_,
                                                            .clock = clock,
                                                            .defaults = defaults_,
                                                            .userFolders = userFolders,
                                                            .container = container,
                                                            .distributedNotifications
                                                            = notifications_,
                                                            .instances = instances_,
                                                            .applications = applications_,
                                                            .bundles = bundles_,
                                                            .inputSources = inputSources_,
                                                            .browserPages = browserPages_,
                                                            .overlayPanel = overlayPanel_,
                                                            .activation = activation_,
                                                            .eventPermissions = eventPermissions_,
                                                            .eventTapping = eventTapping_,
                                                            .eventPosting = eventPosting_,
                                                            .displayLink = displayLink_,
                                                            .cursor = cursor_,
                                                            .accessibility = accessibility_,
                                                            .windows = windows_,
                                                            .processes = processes_,
                                                            .opening = opening_,
                                                        }
{
}

} // namespace brindlex
