#include "inputmethod/SmartInputMethodConfig.h"

#include "inputmethod/SmartInputMethodRanking.h"

#include <algorithm>

namespace brindlex {
namespace {

/// The first entry for the application, or the end.
template <typename AppStats>
auto entryFor(AppStats& appStats, const std::string& bundleID)
{
    return std::find_if(appStats.begin(), appStats.end(),
        [&](const SmartInputMethodAppStats& stats) { return stats.app.bundleID == bundleID; });
}

} // namespace

std::optional<std::set<std::string>> SmartInputMethodConfig::topAppBundleIDs(Date now) const
{
    const auto limit = applicationCount(appLimit);
    if (!limit)
        return {};
    auto top = SmartInputMethodRanking(*this, now).top(*limit);
    if (top.empty())
        return {};
    return top;
}

std::optional<SmartInputMethodAppStats> SmartInputMethodConfig::activeSmartStats(
    const std::optional<std::string>& bundleID, Date now) const
{
    if (!enabled || !bundleID)
        return {};
    const auto entry = entryFor(appStats, *bundleID);
    if (entry == appStats.end())
        return {};
    auto stats = *entry;
    stats.refreshRecommendation(thresholdRatio, windowSize);
    if (!stats.isActive || stats.isDisabled || !stats.recommendedInputSourceID)
        return {};
    const auto limit = applicationCount(appLimit);
    if (limit && !SmartInputMethodRanking(*this, now).admits(*bundleID, *limit))
        return {};
    return stats;
}

void SmartInputMethodConfig::recordSample(
    const std::string& inputSourceID, const AppIdentifier& app, Date recordedAt)
{
    auto entry = entryFor(appStats, app.bundleID);
    if (entry == appStats.end())
        entry = appStats.insert(entry, SmartInputMethodAppStats{.id = Uuid::random(), .app = app});
    entry->samples.push_back({Uuid::random(), inputSourceID, recordedAt});
    entry->lastRecordedAt = recordedAt;
    entry->refreshRecommendation(thresholdRatio, windowSize);
}

void SmartInputMethodConfig::recordActivation(const std::string& bundleID, Date now)
{
    auto& dates = appActivations[bundleID];
    std::erase_if(dates, [&](Date date) { return date < now - activationLifetime; });
    dates.push_back(now);
    if (dates.size() > mostActivations)
        dates.erase(dates.begin(), dates.end() - mostActivations);
}

void SmartInputMethodConfig::normalizeStats()
{
    for (auto& stats : appStats)
        stats.refreshRecommendation(thresholdRatio, windowSize);
}

void SmartInputMethodConfig::setDisabled(const std::string& bundleID, bool value)
{
    const auto entry = entryFor(appStats, bundleID);
    if (entry == appStats.end())
        return;
    entry->isDisabled = value;
    entry->refreshRecommendation(thresholdRatio, windowSize);
}

} // namespace brindlex
