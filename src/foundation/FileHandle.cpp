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

std::size_t FileHandle::writeWhatFits(std::string_view bytes) const
{
    std::size_t count = 0;
    while (count < bytes.size()) {
        const auto written = ::write(descriptor_, bytes.data() + count, bytes.size() - count);
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            break;
        count += static_cast<std::size_t>(written);
    }
    return count;
}

bool FileHandle::close()
{
    if (descriptor_ < 0)
        return true;
    // Not repeated when interrupted: the descriptor is gone by then.
    return ::close(std::exchange(descriptor_, -1)) == 0 || errno == EINTR;
}

} // namespace brindlex
