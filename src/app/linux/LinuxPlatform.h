#pragma once

#include "app/linux/LinuxSession.h"
#include "app/linux/ProviderChoice.h"
#include "app/linux/SessionOffer.h"
#include "app/linux/X11Session.h"
#include "eventtap/KeyName.h"
#include "foundation/MadeOnFirstUse.h"
#include "foundation/Subscription.h"
#include "platform/Platform.h"
#include "platform/linux/accessibility/AccessibilitySwitch.h"
#include "platform/linux/appearance/LinuxAppearance.h"
#include "platform/linux/applications/DesktopApplicationBundles.h"
#include "platform/linux/applications/DesktopEntries.h"
#include "platform/linux/applications/QtIconRendering.h"
#include "platform/linux/applications/XdgLoginItem.h"
#include "platform/linux/network/FetcherHttpReading.h"
#include "platform/linux/panels/QtFilePreviewing.h"
#include "platform/linux/panels/QtKeyablePanel.h"
#include "platform/linux/panels/QtProgramActivation.h"
#include "platform/linux/panels/QtScreenReading.h"
#include "platform/linux/panels/X11WindowPicking.h"
#include "platform/linux/pasteboard/QtImageConverting.h"
#include "platform/linux/pasteboard/X11Pasteboard.h"
#include "platform/linux/programwindows/QtProgramWindows.h"
#include "platform/linux/system/PosixProcessLaunching.h"
#include "platform/linux/system/PosixProgramRelaunching.h"
#include "platform/linux/system/SystemBus.h"
#include "platform/posix/SerialQueue.h"
#include "shell/WindowScenes.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace brindlex {

/// The abilities of a Linux desktop, each from the first provider that the session can have. Made
/// on the main thread, after the application object; the arguments outlive it.
class LinuxPlatform {
public:
    LinuxPlatform(const SessionOffer& offer, LinuxSession& session, Clock& clock,
        AppGroupContainer& container);

    Platform& abilities() { return abilities_; }

    /// Gives the program a window that it can open, from before its start until the subscription
    /// ends; see `QtProgramWindows::Scene`.
    Subscription addWindowScene(
        const WindowScene& scene, std::function<std::unique_ptr<QWidget>()> make);

    /// What keys write, by their virtual key codes.
    KeyCharacters keyCharacters();

    /// Lets the user point at a window.
    WindowPicking& windowPicking() { return windowPicking_.get(x11().applications); }

    /// Makes the view the content of the panel that takes keys; see `QtKeyablePanel`.
    Size hostInPanel(std::unique_ptr<QWidget> view) { return panel_->host(std::move(view)); }
    void emptyPanel() { panel_->empty(); }

    /// What previews of files are made by from now on.
    void setPreviewView(QtFilePreviewing::View view) { previewing_.setView(std::move(view)); }

    /// How the user wants windows to look.
    const Observable<DesktopAppearance>& appearance() const { return appearance_.current(); }

    /// Notifies when the connection to the display has ended.
    Subscription observeDisplayEnd(std::function<void()> handler);

private:
    /// The table of providers: for each ability what can provide it, the best first.
    Platform choose(bool hasX11, Clock& clock, AppGroupContainer& container);
    std::shared_ptr<RunningApplications> x11Applications();
    std::shared_ptr<BrowserPageReading> accessiblePages(const Clock& clock);
    std::shared_ptr<ApplicationOpening> x11Opening();
    std::shared_ptr<SessionLock> x11Lock();
    std::shared_ptr<ProgramWindows> x11Windows();
    std::shared_ptr<Pasteboard> x11Pasteboard();
    std::shared_ptr<Pasting> x11Pasting(EventPosting& posting);
    std::shared_ptr<KeyablePanel> x11Panel();
    X11Session& x11();

    // What every session offers.
    LinuxSession& session_;
    const std::vector<std::string> languages_;
    SystemBus systemBus_;
    DesktopEntries desktopEntries_;
    SerialQueue browserQueue_;
    SerialQueue elementQueue_;
    SerialQueue historyQueue_;
    DesktopApplicationBundles bundles_;
    QtIconRendering icons_;
    QtProgramActivation activation_;
    PosixProcessLaunching processes_;
    const ProgramBundle program_;
    AccessibilitySwitch accessibilitySwitch_;
    XdgLoginItem loginItem_;
    PosixProgramRelaunching relaunching_;
    FetcherHttpReading network_;
    QtImageConverting images_;
    QtScreenReading screens_;
    QtFilePreviewing previewing_;

    /// Made for the first provider that needs it.
    std::shared_ptr<X11Session> x11_;
    LinuxAppearance appearance_;
    std::shared_ptr<QtProgramWindows> programWindows_;
    std::shared_ptr<X11Pasteboard> pasteboard_;
    std::shared_ptr<QtKeyablePanel> panel_;
    MadeOnFirstUse<X11WindowPicking> windowPicking_;
    ProviderChoice providers_;
    Platform abilities_;
};

} // namespace brindlex
