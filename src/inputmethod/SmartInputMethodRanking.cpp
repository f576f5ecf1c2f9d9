#include "inputmethod/SmartInputMethodRanking.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>

namespace brindlex {
namespace {

using AppStats = std::vector<SmartInputMethodAppStats>;

/// The entry that counts of several for one application: the last; the end when there is none.
AppStats::const_reverse_iterator lastEntryFor(const AppStats& appStats, std::string_view bundleID)
{
    return std::find_if(appStats.rbegin(), appStats.rend(),
        [&](const auto& stats) { return stats.app.bundleID == bundleID; });
}

} // namespace

SmartInputMethodRanking::SmartInputMethodRanking(const SmartInputMethodConfig& config, Date now)
    : config_(config), cutoff_(now - SmartInputMethodConfig::activationLifetime)
{
}

bool SmartInputMethodRanking::isBefore(const Ranked& left, const Ranked& right)
{
    return left.score != right.score ? left.score > right.score : left.bundleID < right.bundleID;
}

std::size_t SmartInputMethodRanking::recentCount(const std::vector<Date>& dates) const
{
    // The dates are in the order of recording, which is no order in time once the clock was set
    // back, so all are looked at; the bare numbers let the compiler compare several at once.
    const double cutoff = cutoff_.secondsSinceReferenceDate;
    std::size_t count = 0;
    for (const Date& date : dates)
        count += date.secondsSinceReferenceDate >= cutoff;
    return count;
}

std::set<std::string> SmartInputMethodRanking::top(std::size_t limit) const
{
    std::unordered_map<std::string_view, std::size_t> sampleCounts;
    sampleCounts.reserve(config_.appStats.size());
    for (const auto& stats : config_.appStats)
        sampleCounts[stats.app.bundleID] = stats.samples.size();

    std::vector<Ranked> ranked;
    ranked.reserve(sampleCounts.size() + config_.appActivations.size());
    for (const auto& [bundleID, dates] : config_.appActivations) {
        std::size_t score = recentCount(dates);
        const auto samples = sampleCounts.find(bundleID);
        if (samples != sampleCounts.end()) {
            score = std::max(score, samples->second);
            sampleCounts.erase(samples);
        }
        if (score > 0)
            ranked.push_back({score, bundleID});
    }
    for (const auto& [bundleID, samples] : sampleCounts)
        if (samples > 0)
            ranked.push_back({samples, bundleID});

    const auto end = ranked.begin() + static_cast<std::ptrdiff_t>(std::min(limit, ranked.size()));
    std::partial_sort(ranked.begin(), end, ranked.end(), isBefore);
    std::set<std::string> result;
    std::for_each(ranked.begin(), end, [&](const Ranked& app) { result.emplace(app.bundleID); });
    return result;
}

std::size_t SmartInputMethodRanking::score(const std::string& bundleID) const
{
    const auto dates = config_.appActivations.find(bundleID);
    const auto stats = lastEntryFor(config_.appStats, bundleID);
    return std::max(dates == config_.appActivations.end() ? 0 : recentCount(dates->second),
        stats == config_.appStats.rend() ? 0 : stats->samples.size());
}

bool SmartInputMethodRanking::admits(const std::string& bundleID, std::size_t limit) const
{
    const auto own = score(bundleID);
    const std::size_t places = own > 0 ? limit : 1;
    const auto standsBefore = [&](std::size_t score, const std::string& other) {
        const bool wins = score > own || (score == own && own > 0 && other < bundleID);
        return wins && other != bundleID;
    };

    std::vector<std::string_view> ahead;
    for (const auto& [other, dates] : config_.appActivations) {
        if (!standsBefore(dates.size(), other) || !standsBefore(recentCount(dates), other))
            continue;
        ahead.push_back(other);
        if (ahead.size() == places)
            return false;
    }

    // Nearly always the places are not filled even if no entry repeats an application that another
    // one or the dates have counted, and then there is no need to look for repetitions.
    std::vector<AppStats::const_reverse_iterator> candidates;
    const auto& appStats = config_.appStats;
    for (auto stats = appStats.rbegin(); stats != appStats.rend(); ++stats) {
        if (standsBefore(stats->samples.size(), stats->app.bundleID))
            candidates.push_back(stats);
    }
    if (ahead.size() + candidates.size() < places)
        return true;
    for (const auto& stats : candidates) {
        const auto& other = stats->app.bundleID;
        if (std::find(ahead.begin(), ahead.end(), other) != ahead.end()
            || lastEntryFor(appStats, other) != stats)
            continue;
        ahead.push_back(other);
        if (ahead.size() == places)
            return false;
    }
    return true;
}

} // namespace brindlex
