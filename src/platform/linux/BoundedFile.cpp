#include "platform/linux/BoundedFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brindlex {
namespace {

class Descriptor {
public:
    explicit Descriptor(const std::filesystem::path& file)
        : number_(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY))
    {
    }
    ~Descriptor()
    {
        if (number_ >= 0)
            ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }

private:
    int number_;
};

} // namespace

std::optional<std::string> readBoundedFile(const std::filesystem::path& file, std::size_t limit)
{
    const Descriptor descriptor(file);
    struct stat status = {};
    if (descriptor.number() < 0 || ::fstat(descriptor.number(), &status) != 0
        || !S_ISREG(status.st_mode))
        return {};
    // One byte more than allowed tells a file that is too large, also one that grows meanwhile.
    std::string content;
    const auto expected = static_cast<std::size_t>(status.st_size);
    if (expected > limit)
        return {};
    content.resize(limit + 1 < expected + 1 ? limit + 1 : expected + 1);
    std::size_t length = 0;
    for (;;) {
        const auto count
            = ::read(descriptor.number(), content.data() + length, content.size() - length);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return {};
        if (count == 0)
            break;
        length += static_cast<std::size_t>(count);
        if (length > limit)
            return {};
        if (length == content.size())
            content.resize(std::min(limit + 1, 2 * content.size()));
    }
    content.resize(length);
    return content;
}

} // namespace brindlex
