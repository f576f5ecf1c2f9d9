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
      opening_(display_, activeWindow_, applications_),
      abilities_{mainThread_, clock, defaults_, userFolders, container, notifications_, instances_,
          applications_, bundles_, inputSources_, browserPages_, overlayPanel_, activation_,
          eventPermissions_, eventTapping_, eventPosting_, displayLink_, cursor_, accessibility_,
          windows_, processes_, opening_}
{
}

} // namespace brindlex
