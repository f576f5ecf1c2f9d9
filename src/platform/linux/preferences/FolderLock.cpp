#include "platform/linux/preferences/FolderLock.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>

namespace brindlex {
namespace {

using Clock = std::chrono::steady_clock;

constexpr auto longestWait = std::chrono::seconds(1);
constexpr auto betweenAttempts = std::chrono::milliseconds(5);

} // namespace

FolderLock::FolderLock(const std::filesystem::path& folder)
    : folder_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    const auto end = Clock::now() + longestWait;
    while (folder_ && !isHeld_) {
        isHeld_ = ::flock(folder_.descriptor(), LOCK_EX | LOCK_NB) == 0;
        if (isHeld_ || (errno != EWOULDBLOCK && errno != EINTR) || Clock::now() >= end)
            return;
        std::this_thread::sleep_for(betweenAttempts);
    }
}

} // namespace brindlex
