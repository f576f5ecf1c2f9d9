#include "inputmethod/RuleObstacles.h"

#include "foundation/Text.h"
#include "inputmethod/TextInputSourceService.h"
#include "log/Log.h"
#include "platform/ApplicationIdentifiers.h"

#include <algorithm>

namespace brindlex {
namespace {

constexpr std::size_t mostSuggestions = 3;

std::string quoted(const std::string& text) { return '"' + text + '"'; }

/// "a", "b" and "c"
std::string listed(const std::vector<std::string>& names)
{
    std::string list;
    for (std::size_t index = 0; index < names.size(); ++index) {
        if (index > 0)
            list += index + 1 == names.size() ? " and " : ", ";
        list += quoted(names[index]);
    }
    return list;
}

bool contains(const std::string& text, const std::string& part)
{
    return lowercased(text).find(lowercased(part)) != std::string::npos;
}

/// The identifiers of applications that somebody may have meant by `name`.
std::vector<std::string> similar(
    const std::string& name, const std::vector<InstalledApplication>& applications)
{
    const auto lastPart = name.substr(name.rfind('.') + 1);
    std::vector<std::string> found;
    if (lastPart.empty())
        return found;
    for (const auto& application : applications) {
        const bool isLikeIt
            = contains(application.identifier, lastPart) || contains(application.name, lastPart);
        if (isLikeIt && found.size() < mostSuggestions
            && std::ranges::find(found, application.identifier) == found.end())
            found.push_back(application.identifier);
    }
    return found;
}

bool isRunning(const std::string& identifier, const RunningApplications& applications)
{
    return std::ranges::any_of(applications.running(), [&](const RunningApplication& application) {
        return application.bundleIdentifier == identifier;
    });
}

} // namespace

RuleObstacles::RuleObstacles(KeyboardInputSources& sources, ApplicationBundles& bundles,
    const RunningApplications& applications)
    : sources_(sources), bundles_(bundles), applications_(applications)
{
}

void RuleObstacles::checkSource(const std::string& id)
{
    std::vector<std::string> there;
    for (const auto& source : TextInputSourceService(sources_).availableSources())
        there.push_back(source.id);
    if (there.empty() || std::ranges::find(there, id) != there.end()
        || !reportedSources_.insert(id).second)
        return;
    Log::warn("No input source is called " + quoted(id) + "; there are " + listed(there),
        logCategory::inputMethod);
}

void RuleObstacles::checkApplications(const std::vector<InputMethodRule>& rules)
{
    const auto installed = bundles_.installed();
    for (const auto& rule : rules) {
        const auto& id = rule.app.bundleID;
        const bool isInstalled = std::ranges::any_of(installed,
            [&](const InstalledApplication& application) { return application.identifier == id; });
        if (isInstalled || isMadeOfWindow(id) || isRunning(id, applications_)
            || !reportedApplications_.insert(id).second)
            continue;
        const auto like = similar(id, installed);
        Log::warn("No application is called " + quoted(id) + ", so its rule does not apply"
                + (like.empty() ? "" : "; there are " + listed(like)),
            logCategory::inputMethod);
    }
}

} // namespace brindlex
