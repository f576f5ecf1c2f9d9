#include "app/linux/LinuxPlatform.h"

#include "app/ProgramIdentity.h"
#include "app/linux/EitherSessionLock.h"
#include "app/linux/ProgramBuild.h"
#include "platform/linux/accessibility/AccessibleBrowserPages.h"
#include "platform/linux/accessibility/AccessibleElementTree.h"
#include "platform/linux/applications/X11ApplicationActivating.h"
#include "platform/linux/bus/SessionBusAddress.h"
#include "platform/linux/input/X11CursorReading.h"
#include "platform/linux/input/X11EventPermissions.h"
#include "platform/linux/input/X11EventPosting.h"
#include "platform/linux/input/X11EventTapping.h"
#include "platform/linux/input/X11KeyCharacters.h"
#include "platform/linux/input/X11Pasting.h"
#include "platform/linux/inputsources/DesktopInputSources.h"
#include "platform/linux/panels/QtOverlayPanel.h"
#include "platform/linux/panels/X11ApplicationOpening.h"
#include "platform/linux/programwindows/X11ActivationPolicy.h"
#include "platform/linux/system/DBusSessionLock.h"
#include "platform/linux/tray/ProgramIcon.h"
#include "platform/linux/tray/TrayStatusItem.h"
#include "platform/linux/windows/RandRDisplayLink.h"
#include "platform/linux/windows/X11DisplayScale.h"
#include "platform/linux/windows/X11SessionLock.h"
#include "platform/linux/windows/X11StartupIdentifier.h"
#include "platform/linux/windows/X11WindowList.h"
#include "platform/posix/PosixLanguages.h"

#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <utility>

namespace brindlex {

LinuxPlatform::LinuxPlatform(
    const SessionOffer& offer, LinuxSession& session, Clock& clock, AppGroupContainer& container)
    : session_(session), languages_(posixLanguages(::getenv)),
      desktopEntries_(DesktopEntries::ofUser()), browserQueue_("Brindlex.AX"),
      elementQueue_("Brindlex.Elem"), historyQueue_("Brindlex.Hist"), bundles_(desktopEntries_),
      icons_(desktopEntries_), processes_(session.mainThread), program_(programBuild()),
      accessibilitySwitch_(session.bus.connection()),
      loginItem_(XdgLoginItem::ofUser(
          programIdentity::bundleIdentifier, {program_.name, runningProgramFile()})),
      relaunching_(runningProgramFile(), startupIdentifierForNow),
      network_(session.mainThread, runningProgramFile().replace_filename("brindlex-fetch")),
      appearance_(
          x11().display, session.bus.connection(), session.userFolders.configHome(), offer.desktop),
      abilities_(choose(offer.hasX11, clock, container))
{
}

Platform LinuxPlatform::choose(bool hasX11, Clock& clock, AppGroupContainer& container)
{
    using std::make_shared;
    auto& first = providers_;
    auto& posting = first.of<EventPosting>({{hasX11,
        [&] { return make_shared<X11EventPosting>(x11().input, session_.mainThread, clock); }}});
    return {
        .mainThread = session_.mainThread,
        .clock = clock,
        .defaults = session_.preferences,
        .userFolders = session_.userFolders,
        .languages = languages_,
        .container = container,
        .distributedNotifications = session_.notifications,
        .instances = session_.instances,
        .applications
        = first.of<RunningApplications>({{hasX11, [&] { return x11Applications(); }}}),
        .bundles = bundles_,
        .icons = icons_,
        .inputSources = first.of<KeyboardInputSources>({{hasX11,
            [&] {
                return make_shared<DesktopInputSources>(x11().display, session_.bus.connection());
            }}}),
        .browserPages
        = first.of<BrowserPageReading>({{hasX11, [&] { return accessiblePages(clock); }}}),
        .overlayPanel = first.of<OverlayPanel>(
            {{hasX11, [&] { return make_shared<QtOverlayPanel>(x11().display); }}}),
        .activation = activation_,
        .activationPolicy = first.of<ActivationPolicySetting>(
            {{hasX11, [&] { return make_shared<X11ActivationPolicy>(x11().display); }}}),
        .programWindows = first.of<ProgramWindows>({{hasX11, [&] { return x11Windows(); }}}),
        .statusItem = first.of<StatusItem>({{hasX11,
            [&] {
                return make_shared<TrayStatusItem>(x11().display, session_.bus.connection(),
                    std::string(programIdentity::bundleIdentifier));
            }}}),
        .sessionLock = first.of<SessionLock>({{hasX11, [&] { return x11Lock(); }}}),
        .eventPermissions = first.of<EventPermissions>({{hasX11,
            [&] { return make_shared<X11EventPermissions>(x11().input, session_.preferences); }}}),
        .automation = accessibilitySwitch_,
        .eventTapping = first.of<EventTapping>(
            {{hasX11, [&] { return make_shared<X11EventTapping>(x11().input); }}}),
        .eventPosting = posting,
        .displayLink = first.of<DisplayLink>({{hasX11,
            [&] {
                return make_shared<RandRDisplayLink>(x11().display, session_.mainThread, clock);
            }}}),
        .displayScale = first.of<DisplayScale>(
            {{hasX11, [&] { return make_shared<X11DisplayScale>(x11().display); }}}),
        .cursor = first.of<CursorReading>(
            {{hasX11, [&] { return make_shared<X11CursorReading>(x11().display); }}}),
        .accessibility = first.of<AccessibilityTree>({{hasX11,
            [&] { return make_shared<AccessibleElementTree>(x11().display, elementQueue_); }}}),
        .windows = first.of<WindowList>(
            {{hasX11, [&] { return make_shared<X11WindowList>(x11().display); }}}),
        .processes = processes_,
        .opening = first.of<ApplicationOpening>({{hasX11, [&] { return x11Opening(); }}}),
        .program = program_,
        .loginItem = loginItem_,
        .relaunching = relaunching_,
        .network = network_,
        .pasteboard = first.of<Pasteboard>({{hasX11, [&] { return x11Pasteboard(); }}}),
        .images = images_,
        .pasting = first.of<Pasting>({{hasX11, [&] { return x11Pasting(posting); }}}),
        .activating = first.of<ApplicationActivating>({{hasX11,
            [&] {
                return make_shared<X11ApplicationActivating>(x11().display, x11().applications);
            }}}),
        .keyablePanel = first.of<KeyablePanel>({{hasX11, [&] { return x11Panel(); }}}),
        .screens = screens_,
        .previewing = previewing_,
        .historyQueue = historyQueue_,
    };
}

namespace {

/// Windows have the program's icon from the first one on; without a window nobody needs it.
void giveWindowsTheirIcon()
{
    if (QGuiApplication::windowIcon().isNull())
        QGuiApplication::setWindowIcon(programIcon());
}

} // namespace

Subscription LinuxPlatform::addWindowScene(
    const WindowScene& scene, std::function<std::unique_ptr<QWidget>()> make)
{
    return programWindows_->addScene({
        .id = std::string(scene.id),
        .identifier = windowIdentifier(scene.id),
        .size = {scene.width, scene.height},
        .make =
            [make = std::move(make)] {
                giveWindowsTheirIcon();
                return make();
            },
    });
}

KeyCharacters LinuxPlatform::keyCharacters()
{
    return [characters = std::make_shared<X11KeyCharacters>(x11().display)](
               std::int64_t virtualKeyCode) { return characters->of(virtualKeyCode); };
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
    auto& active = x11().activeWindow;
    return std::make_shared<AccessibleBrowserPages>(session_.mainThread, clock, browserQueue_,
        AccessibleBrowserPages::Front{[&active] { return active.current(); },
            [&active](std::function<void()> handler) {
                return active.observeTitle(std::move(handler));
            }});
}

std::shared_ptr<ApplicationOpening> LinuxPlatform::x11Opening()
{
    auto& session = x11();
    return std::make_shared<X11ApplicationOpening>(session.display, session.applications);
}

std::shared_ptr<SessionLock> LinuxPlatform::x11Lock()
{
    return std::make_shared<EitherSessionLock>(
        std::make_shared<DBusSessionLock>(session_.bus.connection(), systemBus_.connection()),
        std::make_shared<X11SessionLock>(x11().display));
}

std::shared_ptr<ProgramWindows> LinuxPlatform::x11Windows()
{
    programWindows_ = std::make_shared<QtProgramWindows>(x11().display, sessionBusAddress());
    return programWindows_;
}

std::shared_ptr<Pasteboard> LinuxPlatform::x11Pasteboard()
{
    pasteboard_ = std::make_shared<X11Pasteboard>(session_.mainThread);
    return pasteboard_;
}

std::shared_ptr<Pasting> LinuxPlatform::x11Pasting(EventPosting& posting)
{
    return std::make_shared<X11Pasting>(x11().display, posting,
        [this](auto isShared) { pasteboard_->shareWithMouse(std::move(isShared)); });
}

std::shared_ptr<KeyablePanel> LinuxPlatform::x11Panel()
{
    panel_ = std::make_shared<QtKeyablePanel>(x11().display);
    return panel_;
}

X11Session& LinuxPlatform::x11()
{
    if (!x11_)
        x11_ = std::make_shared<X11Session>(session_.mainThread, desktopEntries_);
    return *x11_;
}

} // namespace brindlex
