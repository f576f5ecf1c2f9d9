#include "support/switching/SwitchRecords.h"

namespace brindlex {

InputMethodRule appRule(const std::string& bundleID, const std::string& inputSourceID)
{
    return {Uuid::random(), {bundleID, "Name of " + bundleID}, inputSourceID};
}

DomainInputMethodRule websiteRule(const std::string& domain, const std::string& inputSourceID)
{
    return {Uuid::random(), domain, inputSourceID};
}

std::vector<SmartInputMethodSample> samples(std::size_t count, const std::string& inputSourceID)
{
    std::vector<SmartInputMethodSample> result;
    for (std::size_t number = 0; number < count; ++number)
        result.push_back({Uuid::random(), inputSourceID, Date{static_cast<double>(number) * 60.0}});
    return result;
}

SmartInputMethodAppStats statsOf(
    const std::string& bundleID, std::vector<SmartInputMethodSample> samples)
{
    SmartInputMethodAppStats stats;
    stats.id = Uuid::random();
    stats.app = {bundleID, "Name of " + bundleID};
    stats.samples = std::move(samples);
    return stats;
}

SmartInputMethodConfig learnedConfig(const std::string& bundleID, const std::string& inputSourceID)
{
    SmartInputMethodConfig config;
    config.enabled = true;
    config.appStats.push_back(statsOf(bundleID, samples(10, inputSourceID)));
    config.normalizeStats();
    return config;
}

std::vector<std::string> sourcesOf(const std::vector<SmartInputMethodSample>& samples)
{
    std::vector<std::string> sources;
    for (const auto& sample : samples)
        sources.push_back(sample.inputSourceID);
    return sources;
}

} // namespace brindlex
