#include "applications/AppIconCache.h"

#include "foundation/FileReplacement.h"
#include "foundation/Text.h"
#include "foundation/Uuid.h"
#include "platform/AppGroupFolders.h"

#include <algorithm>
#include <ctime>
#include <sys/stat.h>
#include <system_error>
#include <vector>

namespace brindlex {
namespace {

namespace fs = std::filesystem;

bool isKept(char32_t scalar)
{
    return isAlphanumeric(scalar) || scalar == U'.' || scalar == U'-' || scalar == U'_';
}

/// When the content, the name or the place of a file has changed last; unlike the date of its
/// content this is later than the installation of a program.
std::optional<std::time_t> lastChange(const fs::path& file)
{
    struct stat status = {};
    if (::stat(file.c_str(), &status) != 0)
        return {};
    return status.st_ctime;
}

/// Whether there is such a file, and the others have not changed since it was made.
bool isLaterThan(const fs::path& file, const std::vector<fs::path>& others)
{
    std::error_code ignored;
    const auto made = lastChange(file);
    return made && fs::is_regular_file(file, ignored)
        && std::all_of(others.begin(), others.end(),
            [&](const auto& other) { return lastChange(other) < made; });
}

} // namespace

std::string appIconFileName(std::string_view bundleID)
{
    if (bundleID.empty())
        return Uuid::random().text();
    auto name = scalars(bundleID);
    std::replace_if(
        name.begin(), name.end(), [](char32_t scalar) { return !isKept(scalar); }, U'_');
    return utf8(name);
}

AppIconCache::AppIconCache(IconRendering& icons, AppGroupContainer& container)
    : icons_(icons), container_(container)
{
}

std::optional<fs::path> AppIconCache::iconOf(
    std::string_view bundleID, const fs::path& bundle, const std::optional<fs::path>& iconFile)
{
    const auto folder = appGroupFolder(container_, "Config/AppIcons");
    if (!folder)
        return {};
    const auto file = *folder / (appIconFileName(bundleID) + ".png");
    if (isLaterThan(file, iconFile ? std::vector{bundle, *iconFile} : std::vector{bundle}))
        return file;
    auto picture = iconFile ? icons_.pictureInFile(*iconFile) : std::nullopt;
    if (!picture)
        picture = icons_.pictureOfApplication(bundle);
    if (!picture || !replaceFile(file, *picture))
        return {};
    return file;
}

} // namespace brindlex
