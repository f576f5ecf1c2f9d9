#include "log/LogFile.h"

#include "foundation/FileHandle.h"

#include <fcntl.h>
#include <numeric>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace brindlex {
namespace {

namespace fs = std::filesystem;

fs::path numbered(const fs::path& file, int number)
{
    return file.string() + "." + std::to_string(number);
}

void move(const fs::path& from, const fs::path& to)
{
    std::error_code ignored;
    if (fs::symlink_status(to, ignored).type() == fs::file_type::not_found)
        fs::rename(from, to, ignored);
}

std::uintmax_t sizeOf(const fs::path& file)
{
    std::error_code error;
    const auto size = fs::file_size(file, error);
    return error ? 0 : size;
}

/// Never waits, as it would for a pipe that stands in the file's place.
FileHandle openToAppend(const fs::path& file)
{
    constexpr int flags = O_WRONLY | O_APPEND | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    FileHandle handle(::open(file.c_str(), flags));
    if (handle)
        return handle;
    return FileHandle(::open(file.c_str(), flags | O_CREAT | O_TRUNC, 0600));
}

using Lines = std::span<const std::string_view>;

std::size_t sizeOf(Lines lines)
{
    return std::accumulate(lines.begin(), lines.end(), std::size_t{0},
        [](auto size, const auto& line) { return size + line.size(); });
}

/// How many of so many bytes of the lines belong to whole lines.
std::size_t wholeOf(Lines lines, std::size_t bytes)
{
    std::size_t whole = 0;
    for (const auto& line : lines) {
        if (whole + line.size() > bytes)
            break;
        whole += line.size();
    }
    return whole;
}

/// Takes the last bytes that were written away again, unless another process has written since.
void takeBack(const FileHandle& handle, std::size_t bytes)
{
    struct stat status = {};
    const auto end = ::lseek(handle.descriptor(), 0, SEEK_CUR);
    if (bytes > 0 && end >= static_cast<off_t>(bytes) && ::fstat(handle.descriptor(), &status) == 0
        && status.st_size == end)
        static_cast<void>(!::ftruncate(handle.descriptor(), end - static_cast<off_t>(bytes)));
}

/// Writes lines that stand behind each other in memory in one step. A line that no longer fits is
/// left out whole, or else the next one would be glued to its beginning.
void writeTogether(const FileHandle& handle, Lines lines)
{
    if (lines.empty())
        return;
    const auto written = handle.writeWhatFits({lines.front().data(), sizeOf(lines)});
    takeBack(handle, written - wholeOf(lines, written));
}

bool standBehindEachOther(std::string_view one, std::string_view other)
{
    return one.data() + one.size() == other.data();
}

/// Appends as many of the lines as go into the file before its next rotation; returns how many.
std::size_t appendUntilFull(const fs::path& file, Lines lines)
{
    const auto handle = openToAppend(file);
    auto size = sizeOf(file);
    std::size_t written = 0;
    std::size_t count = 0;
    do {
        if (count > written && !standBehindEachOther(lines[count - 1], lines[count])) {
            writeTogether(handle, lines.subspan(written, count - written));
            written = count;
        }
        size += lines[count].size();
    } while (++count < lines.size() && size < logFileLimit);
    writeTogether(handle, lines.subspan(written, count - written));
    return count;
}

} // namespace

void appendToLogFile(const fs::path& file, std::span<const std::string_view> lines)
{
    while (!lines.empty()) {
        rotateLogFileIfDue(file);
        lines = lines.subspan(appendUntilFull(file, lines));
    }
}

void rotateLogFileIfDue(const fs::path& file)
{
    if (sizeOf(file) < logFileLimit)
        return;
    std::error_code ignored;
    fs::remove(numbered(file, rotatedLogFiles), ignored);
    for (int number = rotatedLogFiles - 1; number >= 1; --number)
        if (fs::exists(numbered(file, number), ignored))
            move(numbered(file, number), numbered(file, number + 1));
    move(file, numbered(file, 1));
}

} // namespace brindlex
