#include "app/linux/LinuxPlatform.h"

#include "app/ProgramIdentity.h"
#include "app/linux/EitherSessionLock.h"
#include "platform/linux/accessibility/AccessibleBrowserPages.h"
#include "platform/linux/accessibility/AccessibleElementTree.h"
#include "platform/linux/input/X11CursorReading.h"
#include "platform/linux/input/X11EventPermissions.h"
#include "platform/linux/input/X11EventPosting.h"
#include "platform/linux/input/X11EventTapping.h"
#include "platform/linux/inputsources/DesktopInputSources.h"
#include "platform/linux/panels/QtOverlayPanel.h"
#include "platform/linux/panels/X11ApplicationOpening.h"
#include "platform/linux/system/DBusSessionLock.h"
#include "platform/linux/windows/RandRDisplayLink.h"
#include "platform/linux/windows/X11SessionLock.h"
#include "platform/linux/windows/X11WindowActivation.h"
#include "platform/linux/windows/X11WindowList.h"

#include <memory>
#include <string>
#include <utility>

namespace brindlex {
LinuxPlatform::LinuxPlatform(const SessionOffer& offer, Clock& clock, XdgUserFolders& userFolders,
    AppGroupContainer& container)
    : desktopEntries_(DesktopEntries::ofUser()), preferencesQueue_("Brindlex.Prefs"),
      browserQueue_("Brindlex.AX"), elementQueue_("Brindlex.Elem"),
      preferences_(
          userFolders.configHome() / (std::string(programIdentity::bundleIdentifier) + ".json"),
          mainThread_, preferencesQueue_),
      notifications_(sessionBus_),
      instances_(sessionBus_, programIdentity::bundleIdentifier,
          [this](auto process) { activateWindowsOf(x11().display, process); }),
      bundles_(desktopEntries_), processes_(mainThread_),
      abilities_(choose(offer.hasX11, clock, userFolders, container))
{
}

Platform LinuxPlatform::choose(
    bool hasX11, Clock& clock, XdgUserFolders& userFolders, AppGroupContainer& container)
{
    using std::make_shared;
    auto& first = providers_;
    return {
        .mainThread = mainThread_,
        .clock = clock,
        .defaults = preferences_,
        .userFolders = userFolders,
        .container = container,
        .distributedNotifications = notifications_,
        .instances = instances_,
        .applications
        = first.of<RunningApplications>({{hasX11, [&] { return x11Applications(); }}}),
        .bundles = bundles_,
        .inputSources = first.of<KeyboardInputSources>({{hasX11,
            [&] {
                return make_shared<DesktopInputSources>(x11().display, sessionBus_.connection());
            }}}),
        .browserPages
        = first.of<BrowserPageReading>({{hasX11, [&] { return accessiblePages(clock); }}}),
        .overlayPanel = first.of<OverlayPanel>(
            {{hasX11, [&] { return make_shared<QtOverlayPanel>(x11().display); }}}),
        .activation = activation_,
        .sessionLock = first.of<SessionLock>({{hasX11, [&] { return x11Lock(); }}}),
        .eventPermissions = first.of<EventPermissions>({{hasX11,
            [&] { return make_shared<X11EventPermissions>(x11().input, preferences_); }}}),
        .eventTapping = first.of<EventTapping>(
            {{hasX11, [&] { return make_shared<X11EventTapping>(x11().input); }}}),
        .eventPosting = first.of<EventPosting>({{hasX11,
            [&] { return make_shared<X11EventPosting>(x11().input, mainThread_, clock); }}}),
        .displayLink = first.of<DisplayLink>({{hasX11,
            [&] { return make_shared<RandRDisplayLink>(x11().display, mainThread_, clock); }}}),
        .cursor = first.of<CursorReading>(
            {{hasX11, [&] { return make_shared<X11CursorReading>(x11().display); }}}),
        .accessibility = first.of<AccessibilityTree>({{hasX11,
            [&] { return make_shared<AccessibleElementTree>(x11().display, elementQueue_); }}}),
        .windows = first.of<WindowList>(
            {{hasX11, [&] { return make_shared<X11WindowList>(x11().display); }}}),
        .processes = processes_,
        .opening = first.of<ApplicationOpening>({{hasX11, [&] { return x11Opening(); }}}),
    };
}

Subscription LinuxPlatform::observeDisplayEnd(std::function<void()> handler)
{
    return x11().display.observeEnd(std::move(handler));
}

std::shared_ptr<RunningApplications> LinuxPlatform::x11Applications()
{
    auto& applications = x11().applications;
    return {x11_, &applications};
}

std::shared_ptr<BrowserPageReading> LinuxPlatform::accessiblePages(const Clock& clock)
{
    return std::make_shared<AccessibleBrowserPages>(
        mainThread_, clock, browserQueue_, [this] { return x11().activeWindow.current(); });
}

std::shared_ptr<ApplicationOpening> LinuxPlatform::x11Opening()
{
    auto& session = x11();
    return std::make_shared<X11ApplicationOpening>(session.display, session.applications);
}

std::shared_ptr<SessionLock> LinuxPlatform::x11Lock()
{
    return std::make_shared<EitherSessionLock>(
        std::make_shared<DBusSessionLock>(sessionBus_.connection(), systemBus_.connection()),
        std::make_shared<X11SessionLock>(x11().display));
}

X11Session& LinuxPlatform::x11()
{
    if (!x11_)
        x11_ = std::make_shared<X11Session>(mainThread_, desktopEntries_);
    return *x11_;
}

} // namespace brindlex
