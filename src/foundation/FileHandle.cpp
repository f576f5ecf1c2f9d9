#include "foundation/FileHandle.h"

#include <cerrno>
#include <unistd.h>

namespace brindlex {

FileHandle& FileHandle::operator=(FileHandle&& other) noexcept
{
    if (this != &other) {
        close();
        descriptor_ = std::exchange(other.descriptor_, -1);
    }
    return *this;
}

bool FileHandle::writeAll(std::string_view bytes) const
{
    while (!bytes.empty()) {
        const auto written = ::write(descriptor_, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool FileHandle::close()
{
    if (descriptor_ < 0)
        return true;
    // Not repeated when interrupted: the descriptor is gone by then.
    return ::close(std::exchange(descriptor_, -1)) == 0 || errno == EINTR;
}

} // namespace brindlex
