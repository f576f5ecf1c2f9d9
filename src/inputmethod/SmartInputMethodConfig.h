#pragma once

#include "foundation/Date.h"
#include "foundation/JsonForm.h"
#include "inputmethod/SmartInputMethodAppStats.h"
#include "inputmethod/SmartInputMethodOptions.h"

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace brindlex {

/// The settings of smart learning and everything that was learned.
struct SmartInputMethodConfig {
    /// Learned rules may decide.
    bool enabled = false;
    /// Manual switches are recorded.
    bool learningEnabled = true;
    SmartInputMethodPriority priority = SmartInputMethodPriority::afterManualRules;
    SmartInputMethodThresholdRatio thresholdRatio = SmartInputMethodThresholdRatio::eighty;
    SmartInputMethodWindowSize windowSize = SmartInputMethodWindowSize::ten;
    SmartInputMethodAppLimit appLimit = SmartInputMethodAppLimit::top20;
    /// In the order of the first sample.
    std::vector<SmartInputMethodAppStats> appStats{};
    /// The times of the manual switches in each application, by bundle identifier, in the order of
    /// recording, at most `mostActivations` each. Bringing an application to the front adds
    /// nothing.
    std::map<std::string, std::vector<Date>> appActivations{};

    static constexpr std::size_t mostActivations = 500;
    /// How long a manual switch counts: 180 days.
    static constexpr Seconds activationLifetime = 15'552'000;

    bool operator==(const SmartInputMethodConfig&) const = default;

    /// The applications whose learned rules may be in force: the `appLimit` highest by score, which
    /// is the larger of the number of manual switches in the last 180 days and the number of
    /// samples; equal scores go by bundle identifier. Nothing means no limit, also when no
    /// application has a score.
    std::optional<std::set<std::string>> topAppBundleIDs(Date now) const;

    /// The statistics of the application, refreshed by the current settings, when its learned rule
    /// is in force; nothing otherwise.
    std::optional<SmartInputMethodAppStats> activeSmartStats(
        const std::optional<std::string>& bundleID, Date now) const;

    /// Adds a sample for the application, whose entry is made at its first one.
    void recordSample(const std::string& inputSourceID, const AppIdentifier& app, Date recordedAt);

    /// Notes a manual switch, and forgets those of the same application that are too old.
    void recordActivation(const std::string& bundleID, Date now);

    /// Derives all recommendations anew by the current settings.
    void normalizeStats();

    /// Switches the learned rule of an application off or on; nothing without an entry for it.
    void setDisabled(const std::string& bundleID, bool value);

    void afterDecoding() { normalizeStats(); }

    static constexpr auto jsonForm()
    {
        using Config = SmartInputMethodConfig;
        return std::tuple{
            orDefault("enabled", &Config::enabled),
            orDefault("learningEnabled", &Config::learningEnabled),
            orDefault("priority", &Config::priority),
            orDefault("thresholdRatio", &Config::thresholdRatio),
            orDefault("windowSize", &Config::windowSize),
            orDefault("appLimit", &Config::appLimit),
            orDefault("appStats", &Config::appStats),
            orDefault("appActivations", &Config::appActivations),
        };
    }
};

} // namespace brindlex
