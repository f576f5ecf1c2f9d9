#include "app/linux/LinuxSession.h"

#include "app/ProgramIdentity.h"
#include "platform/linux/windows/X11WindowActivation.h"
#include "platform/linux/x11/X11Connection.h"

#include <string>

namespace brindlex {
namespace {

/// By a connection of its own: only a process that is about to end activates another one.
void activateWindows(ProgramInstances::ProcessIdentifier process)
{
    X11Connection display;
    activateWindowsOf(display, process);
}

} // namespace

LinuxSession::LinuxSession(XdgUserFolders& folders)
    : userFolders(folders), preferencesQueue("Brindlex.Prefs"),
      preferences(folders.configHome() / (std::string(programIdentity::bundleIdentifier) + ".json"),
          mainThread, preferencesQueue),
      notifications(bus), instances(bus, programIdentity::bundleIdentifier, activateWindows)
{
}

} // namespace brindlex
