#pragma once

#include "foundation/JsonEnumeration.h"

#include <array>
#include <cstddef>
#include <optional>
#include <type_traits>
#include <utility>

namespace brindlex {

/// The rank of learned rules among the user's own.
enum class SmartInputMethodPriority { afterManualRules, beforeManualAppRules, highest };

/// How many percent of the samples must agree.
enum class SmartInputMethodThresholdRatio { seventy, eighty, ninety };

/// How many samples are kept of an application, and how many it needs.
enum class SmartInputMethodWindowSize { ten, twenty, thirty, fifty };

/// How many applications may have a learned rule in force.
enum class SmartInputMethodAppLimit { unlimited, top10, top20, top30, top50 };

constexpr auto storedValues(std::type_identity<SmartInputMethodPriority>)
{
    using enum SmartInputMethodPriority;
    return std::array{
        std::pair{afterManualRules, "afterManualRules"},
        std::pair{beforeManualAppRules, "beforeManualAppRules"},
        std::pair{highest, "highest"},
    };
}

constexpr auto storedValues(std::type_identity<SmartInputMethodThresholdRatio>)
{
    using enum SmartInputMethodThresholdRatio;
    return std::array{std::pair{seventy, 70}, std::pair{eighty, 80}, std::pair{ninety, 90}};
}

constexpr auto storedValues(std::type_identity<SmartInputMethodWindowSize>)
{
    using enum SmartInputMethodWindowSize;
    return std::array{
        std::pair{ten, 10}, std::pair{twenty, 20}, std::pair{thirty, 30}, std::pair{fifty, 50}};
}

constexpr auto storedValues(std::type_identity<SmartInputMethodAppLimit>)
{
    using enum SmartInputMethodAppLimit;
    return std::array{
        std::pair{unlimited, "unlimited"},
        std::pair{top10, "top10"},
        std::pair{top20, "top20"},
        std::pair{top30, "top30"},
        std::pair{top50, "top50"},
    };
}

/// The limit as a number; nothing when there is none.
constexpr std::optional<std::size_t> applicationCount(SmartInputMethodAppLimit limit)
{
    switch (limit) {
    case SmartInputMethodAppLimit::unlimited:
        return {};
    case SmartInputMethodAppLimit::top10:
        return 10;
    case SmartInputMethodAppLimit::top20:
        return 20;
    case SmartInputMethodAppLimit::top30:
        return 30;
    case SmartInputMethodAppLimit::top50:
        return 50;
    }
    return {};
}

} // namespace brindlex
