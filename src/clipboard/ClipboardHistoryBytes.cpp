#include "clipboard/ClipboardHistoryBytes.h"

#include <system_error>

namespace brindlex {
namespace {

/// Of what is no regular file, or has gone meanwhile, none.
std::uintmax_t bytesOf(const std::filesystem::directory_entry& entry)
{
    std::error_code problem;
    if (!std::filesystem::is_regular_file(entry.symlink_status(problem)))
        return 0;
    const auto size = entry.file_size(problem);
    return problem ? 0 : size;
}

/// Nothing when the folder cannot be read.
std::optional<std::uintmax_t> bytesIn(const std::filesystem::path& folder)
{
    std::uintmax_t sum = 0;
    std::error_code problem;
    std::filesystem::directory_iterator entry(folder, problem);
    if (problem == std::errc::no_such_file_or_directory)
        return 0;
    for (; !problem && entry != std::filesystem::directory_iterator(); entry.increment(problem))
        sum += bytesOf(*entry);
    return problem ? std::nullopt : std::optional(sum);
}

} // namespace

std::optional<std::uintmax_t> clipboardHistoryBytes(
    const std::filesystem::path& index, const std::filesystem::path& blobs)
{
    const auto sum = bytesIn(blobs);
    if (!sum)
        return {};
    std::error_code ignored;
    return *sum + bytesOf(std::filesystem::directory_entry(index, ignored));
}

} // namespace brindlex
