#include "app/linux/LinuxEntry.h"

#include "app/AppLifecycleCoordinator.h"
#include "app/ProgramIdentity.h"
#include "app/SharedInstances.h"
#include "app/SingleInstanceManager.h"
#include "app/linux/LinuxPlatform.h"
#include "app/linux/LinuxSession.h"
#include "app/linux/ProgramScreens.h"
#include "inputmethod/TextInputSourceService.h"
#include "log/Log.h"
#include "platform/linux/system/LinkerTables.h"
#include "platform/linux/system/UnixSignals.h"

#include <QApplication>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>
#include <utility>

namespace brindlex {
namespace {

/// How long after the launch the overlay gets ready for its first use.
constexpr Seconds warmUpDelay = 1.0;

/// What has to happen once before the process ends, by whatever road.
class Ending {
public:
    Ending(AppLifecycleCoordinator& lifecycle, UserDefaults& defaults, LogWriter& log)
        : lifecycle_(lifecycle), defaults_(defaults), log_(log)
    {
        current = this;
        std::atexit([] { endWithTheDisplay(); });
    }
    ~Ending() { current = nullptr; }
    Ending(const Ending&) = delete;
    Ending& operator=(const Ending&) = delete;

    /// The stop sequence, if the start went through, and everything brought to disk.
    void end()
    {
        if (std::exchange(hasEnded_, true))
            return;
        if (lifecycle_.isStarted())
            lifecycle_.stop();
        defaults_.synchronize();
        log_.drain();
    }

    /// The end that cannot go back to the loop: the window library leaves by `exit` when its
    /// connection breaks, and so nothing may be left that needs the X server.
    static void endWithTheDisplay()
    {
        if (!current || current->hasEnded_)
            return;
        auto& ending = *current;
        ending.end();
        Log::error("The X server has gone away; Brindlex has ended", logCategory::lifecycle);
        ending.log_.drain();
        std::_Exit(EXIT_FAILURE);
    }

private:
    static inline Ending* current = nullptr;

    AppLifecycleCoordinator& lifecycle_;
    UserDefaults& defaults_;
    LogWriter& log_;
    bool hasEnded_ = false;
};

/// The window library ends the process when it finds no server, so this asks before it does.
bool canReachDisplay()
{
    auto* connection = xcb_connect(nullptr, nullptr);
    const bool isReached = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return isReached;
}

/// Asks the loop to end when the process is asked to. Until the process is gone: a signal that
/// comes while it ends must not keep it from ending in order.
void endWithSignals()
{
    static const auto* const forGood = new UnixSignals([](int) {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), &QCoreApplication::quit, Qt::QueuedConnection);
    });
    static_cast<void>(forGood);
}

/// Leaves the stage to the instance that runs already, if there is one.
bool yieldsToAnotherInstance(LinuxSession& session)
{
    const SingleInstanceManager manager(session.instances);
    const auto existing
        = manager.instanceToYieldTo(Preferences(session.preferences, session.userFolders));
    if (!existing)
        return false;
    std::fprintf(stderr, "brindlex: Brindlex runs already, as process %lld\n",
        static_cast<long long>(*existing));
    manager.wake(*existing, session.notifications);
    return true;
}

/// Prepares the overlay for the names that it will show, and gives back what the start took and
/// nothing needs any more.
void getReadyForLater(Platform& platform)
{
    std::string names;
    for (const auto& source : TextInputSourceService(platform.inputSources).availableSources())
        names += source.localizedName;
    platform.overlayPanel.warmUp(names);
    ::malloc_trim(0);
    releaseLinkerTables();
}

/// What happens once the loop runs: the launch is complete, and a moment later the rest gets ready.
Subscription goOnInLoop(Platform& platform, AppLifecycleCoordinator& lifecycle, bool isSilentLaunch)
{
    platform.mainThread.post(
        [&lifecycle, isSilentLaunch] { lifecycle.didFinishLaunching(isSilentLaunch); });
    return platform.mainThread.after(warmUpDelay, [&platform] { getReadyForLater(platform); });
}

/// The names by which the desktop knows the windows.
void nameWindows()
{
    QApplication::setApplicationName(QStringLiteral("Brindlex"));
    QApplication::setDesktopFileName(QString::fromLatin1(programIdentity::bundleIdentifier));
}

} // namespace

int runOnDesktop(char* programName, bool isSilentLaunch, Clock& clock, XdgUserFolders& userFolders,
    AppGroupContainer& container, LogWriter& log)
{
    if (!canReachDisplay()) {
        constexpr auto problem = "No X server can be reached; DISPLAY has to name one";
        Log::error(problem, logCategory::lifecycle);
        std::fprintf(stderr, "brindlex: %s\n", problem);
        return EXIT_FAILURE;
    }

    // The program's own words to the window library, whatever the user's environment says of it.
    std::array<char*, 5> arguments{programName, const_cast<char*>("-platform"),
        const_cast<char*>("xcb"), const_cast<char*>("-platformtheme"),
        const_cast<char*>("generic")};
    int argumentCount = static_cast<int>(arguments.size());
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication application(argumentCount, arguments.data());
    nameWindows();

    endWithSignals();
    LinuxSession session(userFolders);
    // The life cycle asks as well; asked here, a second launch takes nothing of the desktop before.
    if (yieldsToAnotherInstance(session))
        return EXIT_SUCCESS;

    const auto offer = SessionOffer::fromEnvironment(::getenv);
    LinuxPlatform linuxPlatform(offer, session, clock, container);
    auto& platform = linuxPlatform.abilities();
    SharedInstances shared(platform);
    const ProgramScreens screens(linuxPlatform, shared);
    AppLifecycleCoordinator lifecycle(platform, shared);
    Ending ending(lifecycle, platform.defaults, log);

    const auto displayEnd = linuxPlatform.observeDisplayEnd([] { Ending::endWithTheDisplay(); });
    lifecycle.start();
    Subscription launch;
    if (lifecycle.isStarted())
        launch = goOnInLoop(platform, lifecycle, isSilentLaunch);
    // The loop alone: what the window library does beside it first is to ask the session bus for
    // screen readers, and it waits for ever for a bus that ends in that moment.
    const int status = QCoreApplication::exec();
    ending.end();
    return status;
}

} // namespace brindlex
