#include "ProcessStatus.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace brindlex {
namespace {

/// The number behind a key in one of the process's files under /proc.
long valueIn(pid_t process, const std::string& file, const std::string& key)
{
    std::ifstream stream("/proc/" + std::to_string(process) + "/" + file);
    for (std::string line; std::getline(stream, line);)
        if (line.starts_with(key))
            return std::strtol(line.c_str() + key.size(), nullptr, 10);
    return 0;
}

} // namespace

ProcessMemory memoryOf(pid_t process)
{
    const auto megabytes = [&](const char* key) {
        return static_cast<double>(valueIn(process, "smaps_rollup", key)) / 1024;
    };
    return {megabytes("Rss:"), megabytes("Pss:"),
        megabytes("Private_Clean:") + megabytes("Private_Dirty:")};
}

long sleepsOf(pid_t process)
{
    long sum = 0;
    const auto threads = "/proc/" + std::to_string(process) + "/task";
    for (const auto& thread : std::filesystem::directory_iterator(threads))
        sum += valueIn(process, "task/" + thread.path().filename().string() + "/status",
            "voluntary_ctxt_switches:");
    return sum;
}

} // namespace brindlex
