#pragma once

#include "applications/AppIdentifier.h"
#include "foundation/Date.h"
#include "foundation/JsonForm.h"
#include "foundation/Uuid.h"
#include "inputmethod/SmartInputMethodOptions.h"
#include "inputmethod/SmartInputMethodSample.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// What was learned of one application.
struct SmartInputMethodAppStats {
    /// Identity in lists.
    Uuid id{};
    AppIdentifier app{};
    /// Oldest first, at most the window size.
    std::vector<SmartInputMethodSample> samples{};
    /// The input source with the most samples, also while the window is not full.
    std::optional<std::string> recommendedInputSourceID{};
    /// Its share of the samples, 0 to 100.
    std::int64_t recommendationPercent = 0;
    /// The learned rule is in force.
    bool isActive = false;
    /// The user switched this application's learned rule off.
    bool isDisabled = false;
    /// The time of the newest sample.
    std::optional<Date> lastRecordedAt{};

    bool operator==(const SmartInputMethodAppStats&) const = default;

    /// The input source that alone has the most samples; nothing on a tie and without samples.
    std::optional<std::string> dominantInputSourceID() const;

    /// The share of an input source in the samples in whole percent, rounded down.
    std::int64_t sharePercent(const std::optional<std::string>& inputSourceID) const;

    /// Trims the samples to the newest of the window and derives the recommendation from them.
    ///
    /// It is in force with a full window only, where enough samples agree and the user has not
    /// switched it off.
    void refreshRecommendation(
        SmartInputMethodThresholdRatio thresholdRatio, SmartInputMethodWindowSize windowSize);

    static constexpr auto jsonForm()
    {
        using Stats = SmartInputMethodAppStats;
        return std::tuple{
            orComputed("id", &Stats::id, &Uuid::random),
            required("app", &Stats::app),
            orDefault("samples", &Stats::samples),
            omittedWhenAbsent("recommendedInputSourceID", &Stats::recommendedInputSourceID),
            orDefault("recommendationPercent", &Stats::recommendationPercent),
            orDefault("isActive", &Stats::isActive),
            orDefault("isDisabled", &Stats::isDisabled),
            omittedWhenAbsent("lastRecordedAt", &Stats::lastRecordedAt),
        };
    }
};

} // namespace brindlex
