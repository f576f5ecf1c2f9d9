#include "support/basics/DescriptorLine.h"

#include "foundation/FatalError.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace brindlex {

DescriptorLine::DescriptorLine()
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        fatalError("Cannot make a pipe.");
    reading_ = ends[0];
    writing_ = ends[1];
}

DescriptorLine::~DescriptorLine()
{
    close(reading_);
    if (writing_ >= 0)
        close(writing_);
}

std::optional<std::string> DescriptorLine::read(std::chrono::milliseconds deadline)
{
    close(writing_);
    writing_ = -1;
    const auto end = std::chrono::steady_clock::now() + deadline;
    std::string line;
    while (true) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            end - std::chrono::steady_clock::now());
        pollfd waiting{reading_, POLLIN, 0};
        if (left.count() <= 0 || poll(&waiting, 1, static_cast<int>(left.count())) <= 0)
            return std::nullopt;
        char byte = 0;
        if (::read(reading_, &byte, 1) != 1)
            return std::nullopt;
        if (byte == '\n')
            return line;
        line += byte;
    }
}

} // namespace brindlex
