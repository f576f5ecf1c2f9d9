#include "support/processes/ProcessTable.h"

#include "support/basics/TemporaryFolder.h"

#include <charconv>
#include <fstream>
#include <sys/syscall.h>
#include <unistd.h>

namespace brindlex {
std::vector<pid_t> processesWithVariable(const std::string& name, const std::string& value)
{
    const auto wanted = '\0' + name + "=" + value + '\0';
    std::vector<pid_t> processes;
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator("/proc", ignored)) {
        const auto text = entry.path().filename().string();
        pid_t id = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
        if (error != std::errc{} || end != text.data() + text.size() || id == getpid())
            continue;
        if (('\0' + contentOf(entry.path() / "environ")).find(wanted) != std::string::npos)
            processes.push_back(id);
    }
    return processes;
}

std::vector<pid_t> children() { return childrenOf(getpid()); }

std::vector<pid_t> childrenOf(pid_t process)
{
    std::vector<pid_t> processes;
    std::error_code ignored;
    for (const auto& thread : std::filesystem::directory_iterator(
             "/proc/" + std::to_string(process) + "/task", ignored)) {
        std::ifstream list(thread.path() / "children");
        for (pid_t child = 0; list >> child;)
            processes.push_back(child);
    }
    return processes;
}

std::filesystem::path fileOf(pid_t process)
{
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/" + std::to_string(process) + "/exe", ignored);
}

std::optional<long> timesAsleep(pid_t process)
{
    long times = 0;
    std::error_code ignored;
    for (const auto& thread : std::filesystem::directory_iterator(
             "/proc/" + std::to_string(process) + "/task", ignored)) {
        std::ifstream status(thread.path() / "status");
        for (std::string key, value; status >> key && std::getline(status, value);) {
            const bool isAwake = key == "State:"
                && (value.find("R (") != std::string::npos
                    || value.find("D (") != std::string::npos);
            if (isAwake)
                return std::nullopt;
            if (key.ends_with("voluntary_ctxt_switches:"))
                times += std::stol(value);
        }
    }
    return times;
}

bool waitsForReply(pid_t process)
{
    long call = -1;
    std::string descriptors;
    std::string count;
    std::ifstream("/proc/" + std::to_string(process) + "/syscall") >> call >> descriptors >> count;
#ifdef SYS_poll
    if (call == SYS_poll)
        return count == "0x1";
#endif
    return call == SYS_ppoll && count == "0x1";
}

bool catches(pid_t process, int signal)
{
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string key, value; status >> key && std::getline(status, value);)
        if (key == "SigCgt:")
            return (std::stoull(value, nullptr, 16) >> (signal - 1) & 1) != 0;
    return false;
}

} // namespace brindlex
