#include "platform/linux/system/PosixProcessLaunching.h"

#include "foundation/Result.h"
#include "log/Log.h"

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
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
    pointers.reserve(texts.size() + 1);
    for (auto& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// How a process starts: in a session of its own, with the signals as a new process has them and
/// with the standard streams alone.
class FreshStart {
public:
    FreshStart()
    {
        sigset_t none;
        sigemptyset(&none);
        sigset_t all;
        sigfillset(&all);
        posix_spawnattr_init(&attributes_);
        posix_spawnattr_setsigmask(&attributes_, &none);
        posix_spawnattr_setsigdefault(&attributes_, &all);
        posix_spawnattr_setflags(
            &attributes_, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1);
    }
    ~FreshStart()
    {
        posix_spawn_file_actions_destroy(&actions_);
        posix_spawnattr_destroy(&attributes_);
    }
    FreshStart(const FreshStart&) = delete;
    FreshStart& operator=(const FreshStart&) = delete;

    Result<pid_t, std::string> run(char* const* command) const
    {
        pid_t process = -1;
        const int error
            = posix_spawn(&process, command[0], &actions_, &attributes_, command, environ);
        if (error != 0)
            return fail(std::string(std::strerror(error)));
        return process;
    }

private:
    posix_spawnattr_t attributes_{};
    posix_spawn_file_actions_t actions_{};
};

/// Somebody has to wait for a process, or it stays in the table of processes.
void waitForEnd(pid_t process)
{
    // What a shell ends with that could not run the last program of its command.
    constexpr int notRun = 126;
    constexpr int notFound = 127;
    int status = 0;
    if (waitpid(process, &status, 0) != process || !WIFEXITED(status))
        return;
    if (WEXITSTATUS(status) == notFound)
        Log::warn("A command has named a program that is not to be found", logCategory::mouse);
    else if (WEXITSTATUS(status) == notRun)
        Log::warn("A command has named a program that cannot be run", logCategory::mouse);
}

void waitBeside(pid_t process)
{
    try {
        std::thread([process] { waitForEnd(process); }).detach();
    } catch (const std::system_error& noThread) {
        Log::warn(std::string("Waiting for a process: ") + noThread.what(), logCategory::mouse);
    }
}

/// Never by `fork`: to copy the memory map of a program with windows takes longer than all else
/// between a click and its command.
Result<Done, std::string> start(std::vector<std::string> command)
{
    const auto process = FreshStart().run(pointersTo(command).data());
    if (!process)
        return fail(process.error());
    waitBeside(*process);
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
