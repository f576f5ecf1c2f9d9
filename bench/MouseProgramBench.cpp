// What a user of a mouse feels of the whole program, beside its peers: all on one X server with a
// mouse that is played below it, one after the other and each alone. Peers that are not installed
// are said to be so. For figures that mean something: a release build on a quiet machine.

#include "Distribution.h"
#include "MousePeers.h"
#include "ProcessorTime.h"
#include "TargetWindow.h"
#include "desktop/MouseDesk.h"
#include "mouse/MouseScroll.h"
#include "mouse/ScrollMotion.h"
#include "platform/linux/QtMainThread.h"
#include "platform/linux/RandRDisplayLink.h"
#include "platform/linux/WheelTicks.h"
#include "platform/posix/PosixClock.h"

#include <QCoreApplication>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <stop_token>
#include <thread>

namespace brindlex {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

double milliseconds(Clock::duration time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

void printHeading(const char* heading)
{
    std::printf("\n%-52s %9s %9s %9s %6s\n", heading, "median", "p99", "most", "n");
}

void print(const std::string& what, const Distribution& all, const std::string& remark = {})
{
    std::printf("%-52s %9.3f %9.3f %9.3f %6zu  %s\n", what.c_str(), all.median, all.worstOfHundred,
        all.most, all.count, remark.c_str());
}

void printAbsence(const std::string& program, const char* reason)
{
    std::printf("%-52s %s\n", program.c_str(), reason);
}

/// Ends the program, and says what it found wrong, as that explains a figure.
void endProgram(MouseDesk& desk)
{
    for (const auto& message : desk.program->messages())
        if (message.starts_with("GlobalEventTap: ") || message.starts_with("Input watchdog: "))
            std::printf("  the log says: %s\n", message.c_str());
    desk.program->quit();
    desk.program.reset();
    desk.givesDevicesBack();
}

/// Runs the measurement with the peer, if there is one.
void withPeer(const std::string& name,
    const std::function<std::unique_ptr<ChildProcess>()>& startPeer,
    const std::function<void(const ChildProcess&)>& measure)
{
    if (!isInstalled(name))
        return printAbsence(name, "is not installed");
    const auto peer = startPeer();
    if (!peer)
        return printAbsence(name, "did not take its button");
    measure(*peer);
}

// Actions.

/// A command for a shell, and the moment at which it has run.
class SeenCommand {
public:
    explicit SeenCommand(const VirtualDesktop& desktop)
        : path_((desktop.home() / "seen").string()), pipe_(opened(path_))
    {
    }

    std::string text() const { return "printf x >" + path_; }

    std::optional<Clock::time_point> next() const
    {
        pollfd waiting{pipe_.descriptor(), POLLIN, 0};
        constexpr int patience = 2000;
        if (poll(&waiting, 1, patience) != 1)
            return {};
        const auto now = Clock::now();
        char byte = 0;
        if (read(pipe_.descriptor(), &byte, 1) != 1)
            return {};
        return now;
    }

private:
    static FileHandle opened(const std::string& path)
    {
        mkfifo(path.c_str(), 0600);
        // For writing too, so that a command finds a reader and we never find an end.
        return FileHandle(open(path.c_str(), O_RDWR | O_CLOEXEC));
    }

    std::string path_;
    FileHandle pipe_;
};

/// Does the deed again and again and takes the time until the command has run.
void measureAction(const std::string& name, const SeenCommand& command,
    const std::function<void()>& begin, const std::function<void()>& end)
{
    constexpr int rounds = 200;
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        const auto start = Clock::now();
        begin();
        if (const auto seen = command.next())
            times.push_back(milliseconds(*seen - start));
        end();
        std::this_thread::sleep_for(15ms);
    }
    const auto lost = rounds - static_cast<int>(times.size());
    print(name, distributionOf(std::move(times)), "lost " + std::to_string(lost));
}

void measureSpawn(const SeenCommand& command)
{
    pid_t process = -1;
    auto text = command.text();
    measureAction(
        "a shell started directly, the floor", command,
        [&] {
            char shell[] = "/bin/sh";
            char option[] = "-c";
            char* const arguments[]{shell, option, text.data(), nullptr};
            posix_spawn(&process, shell, nullptr, nullptr, arguments, environ);
        },
        [&] { waitpid(process, nullptr, 0); });
}

void measureActions(MouseDesk& desk)
{
    printHeading("middle button -> its command has run, ms");
    const SeenCommand command(desk.desktop);
    const auto measureClick = [&](const std::string& name) {
        measureAction(
            name, command, [&] { desk.mouse.press(middleButton); },
            [&] {
                desk.mouse.release(middleButton);
                desk.mouse.settle();
            });
    };
    measureSpawn(command);
    MouseConfig config;
    config.click.bindings
        = {click(MouseButton::button3, {}, MouseAction::RunShellCommand{command.text()})};
    desk.start(config);
    measureClick("Brindlex");
    endProgram(desk);
    withPeer(
        "xbindkeys", [&] { return startXbindkeys(desk.desktop, desk.server, command.text()); },
        [&](const ChildProcess&) { measureClick("xbindkeys"); });
}

// The wheel.

/// A single notch of a wheel that stood still.
void measureNotch(const std::string& name, const MouseDesk& desk, const TargetWindow& target)
{
    std::vector<double> times;
    // Longer than any scroll takes to come to its end.
    constexpr auto silence = 400ms;
    constexpr int rounds = 30;
    for (int round = 0; round < rounds; ++round) {
        target.forget();
        const auto start = Clock::now();
        desk.mouse.turnWheel(1);
        if (const auto first = target.next(XCB_BUTTON_PRESS))
            times.push_back(milliseconds(*first - start));
        while (target.next(XCB_BUTTON_PRESS, Clock::now() + silence))
            continue;
    }
    print(name + ": one notch", distributionOf(std::move(times)));
}

/// 100 notches a second, and what that costs the server and the process, if there is one.
void measureTurning(const std::string& name, const MouseDesk& desk, const TargetWindow& target,
    std::optional<pid_t> process)
{
    constexpr int notches = 400;
    std::vector<double> times;
    int arrived = 0;
    const auto server = processOfServer(desk.server);
    const auto serverBefore = secondsUsedBy(server);
    const auto processBefore = process ? secondsUsedBy(*process) : 0;
    target.forget();
    const auto begin = Clock::now();
    for (int notch = 0; notch < notches; ++notch) {
        const auto start = Clock::now();
        desk.mouse.turnWheel(1);
        bool isFirst = true;
        while (const auto came = target.next(XCB_BUTTON_PRESS, begin + (notch + 1) * 10ms)) {
            ++arrived;
            if (std::exchange(isFirst, false))
                times.push_back(milliseconds(*came - start));
        }
        desk.mouse.settle();
    }
    // By the notch, as the notches come later on a computer that has no time.
    const auto load = [&](double used) { return 1000 * used * 100 / notches; };
    const auto serverLoad = load(secondsUsedBy(server) - serverBefore);
    const auto processLoad = process ? load(secondsUsedBy(*process) - processBefore) : 0;
    while (target.next(XCB_BUTTON_PRESS, Clock::now() + 2s))
        ++arrived;
    char remark[96];
    std::snprintf(remark, sizeof(remark), "CPU ms/s %.1f, server %.1f; in %d, out %d", processLoad,
        serverLoad, notches, arrived);
    print(name + ": 100 notches/s", distributionOf(std::move(times)), remark);
}

void measureWheel(const std::string& name, const MouseDesk& desk, const TargetWindow& target,
    std::optional<pid_t> process = {})
{
    measureNotch(name, desk, target);
    measureTurning(name, desk, target, process);
}

MouseConfig smoothWheel()
{
    MouseConfig config;
    config.scroll.smoothEnabled = true;
    return config;
}

/// The wheel the other way round, so that each notch is another one at once.
MouseConfig invertedWheel()
{
    MouseConfig config;
    config.scroll.invertVertical = true;
    return config;
}

void measureWheels(MouseDesk& desk, const TargetWindow& target)
{
    printHeading("wheel -> first wheel event at the application, ms");
    measureWheel("bare server", desk, target);
    for (const auto& [name, config] : {std::pair{"Brindlex, inverted", invertedWheel()},
             std::pair{"Brindlex, smooth", smoothWheel()}}) {
        desk.start(config);
        measureWheel(name, desk, target, desk.program->process());
        endProgram(desk);
    }
    withPeer(
        "imwheel", [&] { return startImwheel(desk.desktop, desk.server); },
        [&](const ChildProcess& peer) { measureWheel("imwheel", desk, target, peer.id()); });
}

// Smoothness.

constexpr int notchesOfTurn = 20;
constexpr Seconds timeOfNotch = 0.005;

/// What the program takes as the frames of the screen.
double framesPerSecond()
{
    QtMainThread mainThread;
    const PosixClock clock;
    X11Connection connection;
    return RandRDisplayLink(connection, mainThread, clock).maximumFramesPerSecond().value_or(60);
}

/// How many notches the smooth motion of one turn posts in all, by its own arithmetic, when all
/// frames come in time.
double notchesPosted(double frameRate)
{
    const double duration = MouseScrollConfig{}.smoothDuration;
    ScrollMotion motion;
    double pixels = 0;
    int turned = 0;
    for (int frame = 1;; ++frame) {
        const double now = frame / frameRate;
        for (; turned < notchesOfTurn && turned * timeOfNotch < now; ++turned)
            motion.add(0, 0, WheelTicks::pixelsPerNotch);
        const auto advance = motion.advance(now, duration);
        if (advance.step)
            pixels += std::round(advance.step->vertical);
        if (advance.isDrained && turned == notchesOfTurn)
            return pixels / WheelTicks::pixelsPerNotch;
    }
}

/// When the notches of one quick turn came.
std::vector<Clock::time_point> turnQuickly(const MouseDesk& desk, const TargetWindow& target)
{
    std::vector<Clock::time_point> came;
    target.forget();
    const auto begin = Clock::now();
    constexpr std::chrono::duration<double> interval{timeOfNotch};
    for (int notch = 0; notch < notchesOfTurn; ++notch) {
        const auto nextNotch
            = begin + std::chrono::duration_cast<Clock::duration>((notch + 1) * interval);
        desk.mouse.turnWheel(1);
        while (const auto event = target.next(XCB_BUTTON_PRESS, nextNotch))
            came.push_back(*event);
        desk.mouse.settle();
    }
    while (const auto event = target.next(XCB_BUTTON_PRESS))
        came.push_back(*event);
    return came;
}

void measureScrolls(const std::string& name, const MouseDesk& desk, const TargetWindow& target)
{
    const double frameRate = framesPerSecond();
    const double frame = 1000 / frameRate;
    // Notches of one frame follow each other as fast as the application takes them.
    const double sameFrame = frame / 4;
    std::vector<double> intervals;
    std::vector<double> strays;
    std::vector<double> distances;
    for (int round = 0; round < 12; ++round) {
        const auto came = turnQuickly(desk, target);
        distances.push_back(std::abs(static_cast<double>(came.size()) - notchesPosted(frameRate)));
        for (std::size_t index = 1; index < came.size(); ++index) {
            const double interval = milliseconds(came[index] - came[index - 1]);
            if (interval < sameFrame)
                continue;
            intervals.push_back(interval);
            strays.push_back(std::abs(interval - frame * std::round(interval / frame)));
        }
    }
    print(name + ": between steps, ms", distributionOf(std::move(intervals)));
    print(name + ": off the beat of the frames, ms", distributionOf(std::move(strays)));
    print(name + ": arrived against posted, notches", distributionOf(std::move(distances)));
}

void measureSmoothness(MouseDesk& desk, const TargetWindow& target)
{
    printHeading("one smooth scroll of 20 notches");
    std::printf("%-52s %9.3f\n", "a frame of the screen, ms", 1000 / framesPerSecond());
    desk.start(smoothWheel());
    measureScrolls("idle", desk, target);
    {
        const std::jthread busy([](const std::stop_token& stop) {
            while (!stop.stop_requested())
                continue;
        });
        measureScrolls("one core busy", desk, target);
    }
    endProgram(desk);
}

// Motion.

void measureMotion(
    const std::string& name, const MouseDesk& desk, const TargetWindow& target, double distance = 3)
{
    constexpr int motions = 3000;
    const auto server = processOfServer(desk.server);
    const auto process = desk.program ? desk.program->process() : -1;
    const auto serverBefore = secondsUsedBy(server);
    const auto processBefore = desk.program ? secondsUsedBy(process) : 0;
    const auto begin = Clock::now();
    for (int motion = 0; motion < motions; ++motion) {
        if (distance != 0)
            desk.mouse.move(motion % 2 ? distance : -distance, 0);
        std::this_thread::sleep_until(begin + (motion + 1) * 1ms);
    }
    desk.mouse.settle();
    // By the motion, as the motions come later on a computer that has no time.
    const auto load = [&](double used) { return 1000 * used * 1000 / motions; };
    const auto processUsed = desk.program ? secondsUsedBy(process) - processBefore : 0;
    std::printf("%-52s %9.1f %9.1f\n", name.c_str(), load(processUsed),
        load(secondsUsedBy(server) - serverBefore));
    target.forget();
}

MouseConfig leftGesture()
{
    MouseConfig config;
    config.gesture.bindings
        = {gesture(MouseButton::left, {}, MouseDirection::right, MouseAction::SwitchSpaceRight{})};
    return config;
}

void measureMotions(MouseDesk& desk, const TargetWindow& target)
{
    std::printf("\n%-52s %9s %9s\n", "1,000 motions a second, CPU ms/s", "program", "server");
    measureMotion("without the program", desk, target);
    for (const auto& [name, config] : {std::pair{"nothing configured", MouseConfig{}},
             std::pair{"a gesture of the left button", leftGesture()},
             std::pair{"a smooth wheel", smoothWheel()}}) {
        desk.start(config);
        measureMotion(std::string(name) + ", mouse at rest", desk, target, 0);
        measureMotion(name, desk, target);
        endProgram(desk);
    }
}

} // namespace
} // namespace brindlex

int main(int count, char** arguments)
{
    using namespace brindlex;
    const QCoreApplication application(count, arguments);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    MouseDesk desk;
    // The same shell for all.
    desk.desktop.setVariable("SHELL", "/bin/sh");
    const TargetWindow target;
    measureActions(desk);
    measureWheels(desk, target);
    measureSmoothness(desk, target);
    measureMotions(desk, target);
}
