#include "eventtap/GlobalEventTap.h"
#include "log/Log.h"
#include "platform/VirtualKey.h"
#include "platform/linux/input/X11EventPermissions.h"
#include "platform/linux/input/X11EventTapping.h"
#include "platform/linux/input/X11InputStream.h"
#include "platform/linux/system/QtMainThread.h"
#include "platform/simulated/SimulatedProgramActivation.h"
#include "platform/simulated/SimulatedUserDefaults.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdio>
#include <string>

namespace brindlex {
namespace {

constexpr std::int64_t leftButton = 0;
constexpr std::int64_t middleButton = 2;
constexpr std::int64_t forwardButton = 4;
constexpr EventMask everything = mouseButtonMask | eventMask(EventType::scrollWheel) | keyMask;

/// What to tap, by the program's argument.
EventInterest interestOf(const std::string& name)
{
    if (name == "triggers")
        return {everything,
            EventTriggers{
                .buttons = {{middleButton, {}}}, .keys = {{virtualKey::a, eventFlag::control}}}};
    if (name == "gesture")
        return {everything, EventTriggers{.buttons = {{leftButton, {}}}}};
    if (name == "modified")
        return {everything, EventTriggers{.buttons = {{leftButton, eventFlag::command}}}};
    if (name == "mice")
        return {everything & ~keyMask, {}};
    if (name == "keyboards")
        return {keyMask, {}};
    return {everything, {}};
}

/// Prints what is logged.
class PrintedLog : public LogSink {
public:
    void write(const LogCall& call) override
    {
        std::printf("%s [%s] %s\n", std::string(rawValue(call.level)).c_str(),
            std::string(call.category).c_str(), std::string(call.message).c_str());
    }
    void prune(Date) override { }
    std::optional<std::filesystem::path> fileURL(Log::Subsystem) override { return {}; }
};

/// Does nothing until the signal comes, like a loop without an end.
void hangUntil(int signal)
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, signal);
    int which = 0;
    sigwait(&signals, &which);
}

} // namespace
} // namespace brindlex

/// A program that taps for one subscriber `triggers`, a `gesture` of the left button, one that is
/// `modified` by command, `mice`, `keyboards` or, without an argument, all, and lets everything
/// pass, for tests that stop, hang and kill it. It prints `ready`, the number of each event's type,
/// unless `quiet` is the second argument, and what is logged in lines of their own. When it sees
/// the forward button go down it hangs until it gets SIGUSR1.
int main(int count, char** arguments)
{
    using namespace brindlex;
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGUSR1);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    const QCoreApplication application(count, arguments);
    Log::install(std::make_shared<PrintedLog>());
    QtMainThread mainThread;
    X11InputStream stream(mainThread);
    X11EventTapping tapping(stream);
    SimulatedUserDefaults defaults;
    X11EventPermissions permissions(stream, defaults);
    SimulatedProgramActivation activation;

    GlobalEventTap tap(tapping, permissions, activation);
    const auto interest = interestOf(count > 1 ? arguments[1] : "");
    const bool isQuiet = count > 2 && std::string(arguments[2]) == "quiet";
    tap.subscribe(
        interest.mask,
        [isQuiet](const Event& event) {
            if (!isQuiet)
                std::printf("%u\n", static_cast<unsigned>(event.type));
            if (isMouseDown(event.type)
                && event.value(EventField::mouseEventButtonNumber) == forwardButton)
                hangUntil(SIGUSR1);
            return EventVerdict::pass;
        },
        interest.triggers);
    if (!tap.isLive())
        return 1;
    const auto soon = mainThread.after(0, [&] { mainThread.post([] { std::puts("ready"); }); });
    const int status = QCoreApplication::exec();
    Log::install(nullptr);
    return status;
}
