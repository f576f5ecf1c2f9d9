#include "inputmethod/SmartInputMethodAppStats.h"

#include "platform/InputSourceIdentifiers.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace brindlex {
namespace {

struct Group {
    std::string_view inputSourceID;
    std::size_t size = 0;
};

std::vector<Group> grouped(const std::vector<SmartInputMethodSample>& samples)
{
    std::vector<Group> groups;
    for (const auto& sample : samples) {
        const auto isItsGroup = [&](const Group& group) {
            return isSameSource(group.inputSourceID, sample.inputSourceID);
        };
        auto group = std::find_if(groups.begin(), groups.end(), isItsGroup);
        if (group == groups.end())
            group = groups.insert(groups.end(), {sample.inputSourceID, 0});
        ++group->size;
    }
    return groups;
}

} // namespace

std::optional<std::string> SmartInputMethodAppStats::dominantInputSourceID() const
{
    const auto groups = grouped(samples);
    const auto largest = std::max_element(groups.begin(), groups.end(),
        [](const Group& left, const Group& right) { return left.size < right.size; });
    if (largest == groups.end())
        return {};
    const auto ofThatSize = std::count_if(groups.begin(), groups.end(),
        [&](const Group& group) { return group.size == largest->size; });
    if (ofThatSize > 1)
        return {};
    return std::string(largest->inputSourceID);
}

std::int64_t SmartInputMethodAppStats::sharePercent(
    const std::optional<std::string>& inputSourceID) const
{
    if (!inputSourceID || samples.empty())
        return 0;
    const auto agreeing = std::count_if(samples.begin(), samples.end(),
        [&](const auto& sample) { return isSameSource(sample.inputSourceID, *inputSourceID); });
    const double share = static_cast<double>(agreeing) / static_cast<double>(samples.size());
    return static_cast<std::int64_t>(std::floor(share * 100.0));
}

void SmartInputMethodAppStats::refreshRecommendation(
    SmartInputMethodThresholdRatio thresholdRatio, SmartInputMethodWindowSize windowSize)
{
    const auto window = storedValue(windowSize);
    if (std::ssize(samples) > window)
        samples.erase(samples.begin(), samples.end() - window);
    recommendedInputSourceID = dominantInputSourceID();
    recommendationPercent = sharePercent(recommendedInputSourceID);
    isActive = std::ssize(samples) >= window && !isDisabled && recommendedInputSourceID
        && recommendationPercent >= storedValue(thresholdRatio);
}

} // namespace brindlex
