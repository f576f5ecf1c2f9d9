#include "MouseFigures.h"
#include "MouseMeasuring.h"
#include "MousePeers.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <functional>
#include <optional>
#include <thread>
#include <utility>

namespace brindlex {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

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

} // namespace

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

} // namespace brindlex
