#include "inputmethod/SmartInputMethodForgetting.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

namespace brindlex {
namespace {

template <typename AppStats>
auto entryWith(AppStats& appStats, const Uuid& id)
{
    return std::find_if(appStats.begin(), appStats.end(),
        [&](const SmartInputMethodAppStats& stats) { return stats.id == id; });
}

std::optional<std::string> bundleIDOf(const SmartInputMethodConfig& config, const Uuid& id)
{
    const auto entry = entryWith(config.appStats, id);
    if (entry == config.appStats.end())
        return {};
    return entry->app.bundleID;
}

/// Gives a member of the entry with the identity its initial value.
template <typename Member>
SmartInputMethodStep emptying(Member SmartInputMethodAppStats::*member, const Uuid& id)
{
    return [member, id](SmartInputMethodConfig& config) {
        const auto entry = entryWith(config.appStats, id);
        if (entry != config.appStats.end())
            (*entry).*member = Member{};
    };
}

SmartInputMethodStep forgettingActivations(std::string bundleID)
{
    return [bundleID = std::move(bundleID)](
               SmartInputMethodConfig& config) { config.appActivations.erase(bundleID); };
}

} // namespace

std::vector<SmartInputMethodStep> clearStats(const SmartInputMethodConfig& config, const Uuid& id)
{
    const auto bundleID = bundleIDOf(config, id);
    if (!bundleID)
        return {};
    using Stats = SmartInputMethodAppStats;
    return {
        emptying(&Stats::samples, id),
        emptying(&Stats::recommendedInputSourceID, id),
        emptying(&Stats::recommendationPercent, id),
        emptying(&Stats::isActive, id),
        emptying(&Stats::lastRecordedAt, id),
        forgettingActivations(*bundleID),
    };
}

std::vector<SmartInputMethodStep> deleteStats(const SmartInputMethodConfig& config, const Uuid& id)
{
    const auto bundleID = bundleIDOf(config, id);
    if (!bundleID)
        return {};
    const auto removingEntries = [id](SmartInputMethodConfig& changed) {
        std::erase_if(changed.appStats, [&](const auto& stats) { return stats.id == id; });
    };
    return {removingEntries, forgettingActivations(*bundleID)};
}

} // namespace brindlex
