#include "platform/linux/system/FreshStart.h"

#include "platform/posix/ArgumentPointers.h"

#include <csignal>
#include <cstring>
#include <spawn.h>
#include <unistd.h>

namespace brindlex {
namespace {

/// The environment as texts of the form "name=value".
std::vector<std::string> environmentWith(const std::map<std::string, std::string>& variables)
{
    std::vector<std::string> texts;
    for (char** own = environ; *own; ++own) {
        const std::string text = *own;
        if (!variables.contains(text.substr(0, text.find('='))))
            texts.push_back(text);
    }
    for (const auto& [name, value] : variables)
        texts.push_back(name + "=" + value);
    return texts;
}

/// How a process starts.
///
/// Never by `fork`: to copy the memory map of a program with windows takes longer than all else
/// between a click and its command.
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

    Result<pid_t, std::string> run(char* const* command, char* const* environment) const
    {
        pid_t process = -1;
        const int error
            = posix_spawn(&process, command[0], &actions_, &attributes_, command, environment);
        if (error != 0)
            return fail(std::string(std::strerror(error)));
        return process;
    }

private:
    posix_spawnattr_t attributes_{};
    posix_spawn_file_actions_t actions_{};
};

} // namespace

Result<pid_t, std::string> startFresh(
    std::vector<std::string> command, const std::map<std::string, std::string>& variables)
{
    auto environment = environmentWith(variables);
    return FreshStart().run(pointersTo(command).data(), pointersTo(environment).data());
}

} // namespace brindlex
