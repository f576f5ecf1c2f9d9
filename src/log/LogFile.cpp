#include "log/LogFile.h"

#include "foundation/FileHandle.h"

#include <fcntl.h>
#include <string>
#include <system_error>

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

/// Appends as many of the lines as go into the file before its next rotation; returns how many.
/// Lines that stand behind each other in memory are written in one step.
std::size_t appendUntilFull(const fs::path& file, std::span<const std::string_view> lines)
{
    const auto handle = openToAppend(file);
    auto size = sizeOf(file);
    std::string_view waiting;
    std::size_t count = 0;
    do {
        const auto line = lines[count];
        if (waiting.data() + waiting.size() == line.data()) {
            waiting = {waiting.data(), waiting.size() + line.size()};
        } else {
            handle.writeAll(waiting);
            waiting = line;
        }
        size += line.size();
    } while (++count < lines.size() && size < logFileLimit);
    handle.writeAll(waiting);
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
