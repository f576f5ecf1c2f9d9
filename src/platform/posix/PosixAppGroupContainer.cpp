#include "platform/posix/PosixAppGroupContainer.h"

#include "foundation/PrivateFolder.h"
#include "log/Log.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace brindlex {

PosixAppGroupContainer::PosixAppGroupContainer(std::filesystem::path folder)
    : folder_(std::move(folder))
{
}

std::optional<std::filesystem::path> PosixAppGroupContainer::appGroupContainerURL()
{
    struct stat status = {};
    int error = ::stat(folder_.c_str(), &status) == 0 ? 0 : errno;
    if (error == ENOENT) {
        const int cause = makePrivateFolder(folder_);
        if (::stat(folder_.c_str(), &status) == 0)
            error = 0;
        else if (cause != 0)
            error = cause;
    }
    if (error != 0)
        refuse(Problem::cannotBeHad, "cannot be had: " + std::generic_category().message(error));
    else if (!S_ISDIR(status.st_mode))
        refuse(Problem::isNoFolder, "is not a folder");
    else if (status.st_uid != ::geteuid())
        refuse(Problem::isNotTheUsers, "belongs to another user");
    else if ((status.st_mode & (S_IWGRP | S_IWOTH)) != 0)
        refuse(Problem::isOpenToOthers, "may be written to by others");
    else
        return usable();
    return {};
}

void PosixAppGroupContainer::refuse(Problem problem, const std::string& words)
{
    if (isNew(problem))
        Log::error("App Group container refused: " + folder_.string() + " " + words,
            logCategory::lifecycle);
}

std::filesystem::path PosixAppGroupContainer::usable()
{
    const bool isWritable = ::faccessat(AT_FDCWD, folder_.c_str(), W_OK, AT_EACCESS) == 0;
    const int error = errno;
    if (!isWritable && isNew(Problem::isReadOnly))
        Log::warn("App Group container cannot be written to: " + folder_.string() + ": "
                + std::generic_category().message(error),
            logCategory::lifecycle);
    return folder_;
}

/// The log asks for the container itself: the problem counts as logged before it is.
bool PosixAppGroupContainer::isNew(Problem problem)
{
    return !isLogged_[static_cast<std::size_t>(problem)].exchange(true);
}

} // namespace brindlex
