#include "platform/linux/applications/X11ApplicationActivating.h"

#include "platform/linux/windows/X11WindowActivation.h"
#include "platform/linux/windows/X11WindowReading.h"
#include "platform/linux/windows/X11WindowStack.h"

namespace brindlex {
namespace {

/// The last opened first where the window manager does not say how they lie.
std::vector<xcb_window_t> windowsFromTheTop(X11Connection& connection)
{
    if (const auto stack = X11WindowStackRequest(connection).fromTheTop())
        return *stack;
    const auto managed = managedWindows(connection);
    return {managed.rbegin(), managed.rend()};
}

} // namespace

void X11ApplicationActivating::activate(ProcessIdentity application)
{
    const auto frontmost = applications_.frontmost();
    const bool isInFront = frontmost && frontmost->processIdentifier == application;
    if (isInFront || application == ProcessIdentity::none)
        return;
    const auto windows = windowsFromTheTop(connection_);
    const auto descriptions = describe(connection_, windows);
    for (std::size_t index = 0; index < windows.size(); ++index)
        if (descriptions[index]
            && ProcessIdentity{descriptions[index]->processIdentifier} == application)
            return activateWindow(connection_, windows[index]);
}

} // namespace brindlex
