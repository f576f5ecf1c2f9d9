#include "app/linux/ProgramBuild.h"

#include <string>
#include <string_view>
#include <system_error>

namespace brindlex {

/// In a source that the build writes when it is another one.
extern const char* const buildCommit;

ProgramBundle programBuild()
{
    return {
        .name = "Brindlex",
        .shortVersion = BRINDLEX_VERSION,
        .commit = buildCommit,
        .updateFeedURL = BRINDLEX_UPDATE_FEED,
    };
}

std::filesystem::path runningProgramFile()
{
    constexpr std::string_view replaced = " (deleted)";
    std::error_code ignored;
    auto file = std::filesystem::read_symlink("/proc/self/exe", ignored).string();
    if (file.ends_with(replaced) && !std::filesystem::exists(file, ignored))
        file.resize(file.size() - replaced.size());
    return file;
}

} // namespace brindlex
