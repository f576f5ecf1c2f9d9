#include "platform/linux/PosixProcessLaunching.h"

#include "foundation/FileHandle.h"
#include "foundation/Result.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <linux/close_range.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace brindlex {
namespace {

bool canBeRun(const std::filesystem::path& program)
{
    std::error_code ignored;
    return std::filesystem::is_regular_file(program, ignored) && access(program.c_str(), X_OK) == 0;
}

std::filesystem::path shellFor(const std::filesystem::path& executable)
{
    if (executable != "/bin/zsh" || canBeRun(executable))
        return executable;
    const char* const own = std::getenv("SHELL");
    return own && *own == '/' && canBeRun(own) ? own : "/bin/sh";
}

std::vector<char*> pointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    for (auto& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// In the new process, where only calls that are safe after `fork` are allowed. Tells the reason of
/// a failure through the pipe, which a success closes.
[[noreturn]] void become(char* const* command, int report)
{
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    for (int signal = 1; signal < NSIG; ++signal)
        std::signal(signal, SIG_DFL);
    close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
    execv(command[0], command);
    const int error = errno;
    (void)!write(report, &error, sizeof(error));
    _exit(127);
}

/// The process between leaves at once, so that the new one belongs to nobody and leaves nothing
/// behind.
[[noreturn]] void detach(char* const* command, int report)
{
    setsid();
    const auto process = fork();
    if (process == 0)
        become(command, report);
    if (process < 0) {
        const int error = errno;
        (void)!write(report, &error, sizeof(error));
    }
    _exit(0);
}

Result<Done, std::string> start(std::vector<std::string> command)
{
    const auto pointers = pointersTo(command);
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return fail(std::string(std::strerror(errno)));
    const FileHandle reading(ends[0]);
    FileHandle writing(ends[1]);

    const auto between = fork();
    if (between < 0)
        return fail(std::string(std::strerror(errno)));
    if (between == 0)
        detach(pointers.data(), writing.descriptor());
    writing.close();
    waitpid(between, nullptr, 0);
    int error = 0;
    if (read(reading.descriptor(), &error, sizeof(error)) == sizeof(error))
        return fail(std::string(std::strerror(error)));
    return Done{};
}

} // namespace

void PosixProcessLaunching::launch(const std::filesystem::path& executable,
    const std::vector<std::string>& arguments, Failed failed)
{
    std::vector<std::string> command{shellFor(executable).string()};
    command.insert(command.end(), arguments.begin(), arguments.end());
    if (!queue_)
        queue_.emplace("Brindlex.Launch");
    queue_->post(
        [&mainThread = mainThread_, command = std::move(command), failed = std::move(failed)] {
            const auto started = start(command);
            if (!started)
                mainThread.post([failed, reason = started.error()] { failed(reason); });
        });
}

} // namespace brindlex
