#include "applications/ApplicationChoices.h"

#include "applications/FoldedText.h"
#include "foundation/Text.h"
#include "platform/ApplicationIdentifiers.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

namespace brindlex {
namespace {

/// Where the application stands: the first of the recent ones before all others.
std::size_t recencyOf(const std::string& identifier, const ApplicationUse& use)
{
    const auto found = std::find(use.recent.begin(), use.recent.end(), identifier);
    return static_cast<std::size_t>(std::distance(use.recent.begin(), found));
}

} // namespace

std::vector<ApplicationChoice> applicationChoices(
    const std::vector<InstalledApplication>& installed, const ApplicationUse& use)
{
    using Rank = std::tuple<std::size_t, bool, std::string>;
    std::vector<std::pair<Rank, ApplicationChoice>> ranked;
    std::set<std::string> seen;
    for (const auto& application : installed) {
        if (!application.isInMenus || !seen.insert(application.identifier).second)
            continue;
        const bool isRunning = use.running.contains(application.identifier);
        ranked.push_back(
            {{recencyOf(application.identifier, use), !isRunning, foldedText(application.name)},
                {application.identifier, application.name, application.path, isRunning}});
    }
    std::sort(ranked.begin(), ranked.end(),
        [](const auto& one, const auto& other) { return one.first < other.first; });
    std::vector<ApplicationChoice> choices;
    for (auto& [rank, choice] : ranked)
        choices.push_back(std::move(choice));
    return choices;
}

std::optional<std::filesystem::path> pathToChoose(const RunningApplication& application)
{
    if (application.bundlePath)
        return application.bundlePath;
    const auto& identifier = application.bundleIdentifier;
    if (identifier && isMadeOfWindow(*identifier))
        return *identifier;
    return {};
}

std::vector<ApplicationChoice> matchingChoices(
    const std::vector<ApplicationChoice>& choices, std::string_view query)
{
    const auto words = split(foldedText(query), ' ');
    std::vector<ApplicationChoice> matching;
    std::copy_if(choices.begin(), choices.end(), std::back_inserter(matching),
        [&](const ApplicationChoice& choice) {
            const auto name = foldedText(choice.name);
            return std::all_of(words.begin(), words.end(),
                [&](const std::string& word) { return name.find(word) != std::string::npos; });
        });
    return matching;
}

} // namespace brindlex
