#include "platform/linux/QtMainThread.h"
#include "platform/linux/X11EventTapping.h"
#include "platform/linux/X11InputStream.h"
#include "platform/posix/PosixClock.h"

#include <QCoreApplication>

#include <chrono>
#include <cstdio>
#include <string>
#include <thread>

namespace brindlex {
namespace {

constexpr std::int64_t forwardButton = 4;
constexpr EventMask everything = 0xE400CDE;

/// What to tap, by the program's argument.
EventInterest interestOf(const std::string& name)
{
    if (name == "triggers")
        return {everything, EventTriggers{.buttons = {{2, {}}}, .keys = {{0, eventFlag::control}}}};
    if (name == "mice")
        return {everything & ~EventMask{0xC00}, {}};
    if (name == "keyboards")
        return {0xC00, {}};
    return {everything, {}};
}

} // namespace
} // namespace brindlex

/// A program that taps `triggers`, `mice`, `keyboards` or, without an argument, all, and lets
/// everything pass, for tests that stop, hang and kill it. It says `ready`, `switched off` and
/// `number of an event's type` in lines of its own, and hangs for as long as any test lasts when it
/// sees the forward button go down.
int main(int count, char** arguments)
{
    using namespace brindlex;
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const QCoreApplication application(count, arguments);
    QtMainThread mainThread;
    const PosixClock clock;
    X11InputStream stream(mainThread, clock);
    X11EventTapping tapping(stream);

    std::unique_ptr<EventTap> tap;
    const auto interest = interestOf(count > 1 ? arguments[1] : "");
    tap = tapping.createTap(interest.mask, {interest}, [&](const Event& event) {
        if (event.type == EventType::tapDisabledByTimeout) {
            std::puts("switched off");
            tap->setEnabled(true);
            return EventVerdict::pass;
        }
        std::printf("%u\n", static_cast<unsigned>(event.type));
        if (isMouseDown(event.type)
            && event.value(EventField::mouseEventButtonNumber) == forwardButton)
            std::this_thread::sleep_for(std::chrono::minutes(5));
        return EventVerdict::pass;
    });
    if (!tap)
        return 1;
    tap->setEnabled(true);
    const auto soon = mainThread.after(0, [&] { mainThread.post([] { std::puts("ready"); }); });
    return QCoreApplication::exec();
}
