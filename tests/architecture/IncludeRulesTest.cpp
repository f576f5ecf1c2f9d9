#include "architecture/Sources.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>

namespace brindlex {
namespace {

/// What of app/ the subsystems may know: the records, preferences and the log that all share, never
/// the composition.
const std::set<std::string> sharedHeaders{
    "app/AppIdentifier.h",
    "app/AppIdentifierLoader.h",
    "app/ConfigurationStore.h",
    "app/Log.h",
    "app/PreferenceAccess.h",
    "app/UserDefaultPreferenceKeys.h",
};

/// Which folders a folder may include, besides itself. This table is the architecture.
const std::map<std::string, std::set<std::string>> mayInclude{
    {"foundation", {}},
    {"platform", {"foundation"}},
    {"platform/posix", {"foundation", "platform", "app"}},
    {"platform/simulated", {"foundation", "platform"}},
    {"platform/linux", {"foundation", "platform", "platform/posix", "app"}},
    {"inputmethod", {"foundation", "platform", "app"}},
    {"mouse", {"foundation", "platform", "app", "inputmethod"}},
    {"app", {"foundation", "platform", "inputmethod", "mouse"}},
    {"app/linux",
        {"foundation", "platform", "platform/posix", "platform/linux", "app", "inputmethod"}},
};

/// Where the whole of app/ may be included, not just what the subsystems share.
const std::set<std::string> composition{"app", "app/linux"};

TEST(IncludeRules, foldersIncludeOnlyWhatTheyMay)
{
    for (const auto& include : includesBelow(SOURCES)) {
        if (!include.isOwn)
            continue;
        const auto folder = include.file.parent_path().string();
        const auto target = std::filesystem::path(include.target).parent_path().string();
        const auto rule = mayInclude.find(folder);
        ASSERT_NE(rule, mayInclude.end()) << folder << " is not in the table";
        const bool isAllowed = target == folder || rule->second.contains(target);
        EXPECT_TRUE(isAllowed) << include.file << ":" << include.line << " " << include.target;
        if (target == "app" && !composition.contains(folder)) {
            EXPECT_TRUE(sharedHeaders.contains(include.target))
                << include.file << ":" << include.line << " " << include.target;
        }
    }
}

TEST(IncludeRules, filesFormFloorsWithoutACircle)
{
    std::map<std::string, std::set<std::string>> targets;
    for (const auto& include : includesBelow(SOURCES))
        if (include.isOwn)
            targets[include.file.string()].insert(include.target);

    std::set<std::string> finished;
    std::vector<std::string> road;
    const std::function<void(const std::string&)> visit = [&](const std::string& file) {
        const auto met = std::find(road.begin(), road.end(), file);
        if (met != road.end()) {
            std::string circle;
            for (auto step = met; step != road.end(); ++step)
                circle += *step + " -> ";
            ADD_FAILURE() << circle << file;
            return;
        }
        if (finished.contains(file))
            return;
        road.push_back(file);
        for (const auto& target : targets[file])
            visit(target);
        road.pop_back();
        finished.insert(file);
    };
    for (const auto& file : sourceFiles(SOURCES))
        visit(file.string());
}

TEST(IncludeRules, systemLibrariesStayInTheirProviders)
{
    const auto belongsToALibrary = [](const std::string& header) {
        return header.starts_with("Q") || header.starts_with("X11/") || header.starts_with("xcb/")
            || header.starts_with("xkbcommon/") || header.starts_with("systemd/");
    };
    for (const auto& include : includesBelow(SOURCES)) {
        if (!include.isOwn && belongsToALibrary(include.target)) {
            const auto folder = include.file.parent_path().string();
            EXPECT_TRUE(folder == "platform/linux" || folder == "app/linux")
                << include.file << ":" << include.line << " " << include.target;
        }
    }
}

} // namespace
} // namespace brindlex
