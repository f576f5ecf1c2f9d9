#include "clipboard/ClipboardBlobs.h"

#include "foundation/FileHandle.h"
#include "foundation/PrivateFolder.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace brindlex {
namespace {

std::vector<std::string> namesIn(const std::filesystem::path& folder)
{
    std::vector<std::string> names;
    std::error_code problem;
    std::filesystem::directory_iterator entry(folder, problem);
    for (; !problem && entry != std::filesystem::directory_iterator(); entry.increment(problem))
        names.push_back(entry->path().filename().string());
    return names;
}

} // namespace

bool isBlobName(std::string_view name)
{
    constexpr std::string_view separators("/\0", 2);
    return !name.empty() && name != "." && name != ".."
        && name.find_first_of(separators) == std::string_view::npos;
}

std::optional<std::filesystem::path> ClipboardBlobs::file(const std::string& name) const
{
    if (!isBlobName(name))
        return {};
    return folder_ / name;
}

Result<Done, FileProblem> ClipboardBlobs::write(
    const std::string& name, std::string_view bytes) const
{
    const auto path = file(name);
    if (!path)
        return fail(FileProblem::ofSystem(folder_ / name, EINVAL));
    makePrivateFolder(folder_);
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
    FileHandle handle(::open(path->c_str(), flags, S_IRUSR | S_IWUSR));
    if (!handle)
        return fail(FileProblem::ofSystem(*path, errno));
    if (handle.writeAll(bytes) && handle.close())
        return Done{};
    const auto problem = FileProblem::ofSystem(*path, errno);
    remove(name);
    return fail(problem);
}

void ClipboardBlobs::remove(const std::string& name) const
{
    std::error_code ignored;
    if (const auto path = file(name))
        std::filesystem::remove(*path, ignored);
}

void ClipboardBlobs::removeAllBut(const std::unordered_set<std::string>& names) const
{
    for (const auto& name : namesIn(folder_))
        if (!names.contains(name))
            remove(name);
}

} // namespace brindlex
