#include "logviewer/LogTail.h"

#include "foundation/FileHandle.h"
#include "foundation/Text.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace brindlex {
namespace {

/// Small enough to stay in the processor's cache while it is looked through.
constexpr std::size_t pieceSize = 256 * 1024;

/// A stretch of the file.
struct Stretch {
    std::uint64_t begin = 0;
    std::uint64_t end = 0;
};

/// Finds the lines of a file, piece by piece, and remembers where the newest ones begin.
class LineFinder {
public:
    LineFinder(std::uint64_t offset, std::size_t most) : end_(offset), begins_(most) { }

    /// Takes bytes that end with a newline and follow those taken before.
    void take(std::string_view lines)
    {
        isWellFormed_ = isWellFormed_ && isWellFormed(lines);
        for (std::size_t begin = 0; begin < lines.size();) {
            const auto end = lines.find('\n', begin);
            if (end > begin)
                begins_[count_++ % begins_.size()] = end_ + begin;
            begin = end + 1;
        }
        end_ += lines.size();
    }

    bool isAllWellFormed() const { return isWellFormed_; }
    std::uint64_t end() const { return end_; }
    std::size_t count() const { return count_; }

    /// From the oldest of the newest lines to the end of the last one.
    Stretch newest() const
    {
        if (count_ == 0)
            return {end_, end_};
        return {count_ < begins_.size() ? begins_.front() : begins_[count_ % begins_.size()], end_};
    }

private:
    std::uint64_t end_;
    /// A ring of the places where the newest lines begin.
    std::vector<std::uint64_t> begins_;
    std::size_t count_ = 0;
    bool isWellFormed_ = true;
};

/// Fills as much of the buffer as the file has there; fewer bytes at its end. Negative on failure.
ssize_t readAt(const FileHandle& file, std::uint64_t offset, char* buffer, std::size_t size)
{
    std::size_t length = 0;
    while (length < size) {
        const auto count = ::pread(
            file.descriptor(), buffer + length, size - length, static_cast<off_t>(offset + length));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return count;
        if (count == 0)
            break;
        length += static_cast<std::size_t>(count);
    }
    return static_cast<ssize_t>(length);
}

/// False when the file could not be read.
bool findLines(const FileHandle& file, Stretch stretch, LineFinder& finder)
{
    std::string buffer(pieceSize, '\0');
    std::size_t kept = 0;
    for (auto at = stretch.begin; at < stretch.end;) {
        // A line that fills the whole buffer needs a larger one.
        if (kept == buffer.size())
            buffer.resize(2 * buffer.size());
        const auto count = readAt(file, at, buffer.data() + kept,
            std::min<std::uint64_t>(buffer.size() - kept, stretch.end - at));
        if (count < 0)
            return false;
        if (count == 0)
            break;
        at += static_cast<std::uint64_t>(count);
        const std::string_view bytes(buffer.data(), kept + static_cast<std::size_t>(count));
        const auto fresh = bytes.substr(kept).rfind('\n');
        if (fresh == std::string_view::npos) {
            kept = bytes.size();
            continue;
        }
        const auto length = kept + fresh + 1;
        finder.take(bytes.substr(0, length));
        std::copy(bytes.begin() + static_cast<std::ptrdiff_t>(length), bytes.end(), buffer.begin());
        kept = bytes.size() - length;
    }
    return true;
}

std::vector<std::string> linesIn(std::string_view text)
{
    std::vector<std::string> lines;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size() - 1);
        if (end > 0)
            lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    return lines;
}

} // namespace

Result<LogTail, FileProblem> readLogTail(
    const std::filesystem::path& file, std::uint64_t offset, std::size_t most)
{
    const FileHandle handle(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status = {};
    if (!handle || ::fstat(handle.descriptor(), &status) != 0)
        return fail(FileProblem::ofSystem(file, errno));
    if (!S_ISREG(status.st_mode))
        return fail(FileProblem::notARegularFile(file));

    LineFinder finder(offset, most);
    if (!findLines(handle, {offset, static_cast<std::uint64_t>(status.st_size)}, finder))
        return fail(FileProblem::ofSystem(file, errno));
    if (!finder.isAllWellFormed())
        return LogTail{.end = finder.end()};

    const auto newest = finder.newest();
    std::string text(newest.end - newest.begin, '\0');
    const auto length = readAt(handle, newest.begin, text.data(), text.size());
    if (length < 0)
        return fail(FileProblem::ofSystem(file, errno));
    text.resize(static_cast<std::size_t>(length));
    return LogTail{linesIn(text), finder.count(), finder.end()};
}

} // namespace brindlex
