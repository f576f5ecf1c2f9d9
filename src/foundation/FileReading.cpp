#include "foundation/FileReading.h"

#include "foundation/FileHandle.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace brindlex {

Result<std::optional<std::string>, FileProblem> readFile(
    const std::filesystem::path& file, std::size_t limit)
{
    const FileHandle handle(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!handle && errno == ENOENT)
        return std::optional<std::string>{};
    struct stat status = {};
    if (!handle || ::fstat(handle.descriptor(), &status) != 0)
        return fail(FileProblem::ofSystem(file, errno));
    if (!S_ISREG(status.st_mode))
        return fail(FileProblem::notARegularFile(file));

    const auto mostBytes = std::min(limit, std::string().max_size() - 1);
    const auto tooLarge = [&] {
        return fail(FileProblem{file, "Is larger than " + std::to_string(limit) + " bytes"});
    };
    // The size is a hint: files of the kernel report 0, and the file may grow.
    const auto expected = static_cast<std::size_t>(status.st_size);
    if (expected > mostBytes)
        return tooLarge();
    std::string content;
    std::size_t length = 0;
    for (;;) {
        content.resize(std::min(std::max(expected, length + 4096) + 1, mostBytes + 1));
        const auto count
            = ::read(handle.descriptor(), content.data() + length, content.size() - length);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return fail(FileProblem::ofSystem(file, errno));
        length += static_cast<std::size_t>(count);
        if (length > mostBytes)
            return tooLarge();
        if (count == 0)
            break;
    }
    content.resize(length);
    return std::optional<std::string>(std::move(content));
}

} // namespace brindlex
