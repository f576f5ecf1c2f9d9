#pragma once

#include "inputmethod/SmartInputMethodConfig.h"

#include <cstddef>
#include <set>
#include <string>
#include <string_view>

namespace brindlex {

/// The order of applications by how much was learned of them lately: highest score first, equal
/// scores by bundle identifier. Applications without a score have no rank.
///
/// Looks at the configuration that it was made with, which must outlive it, and copies nothing.
class SmartInputMethodRanking {
public:
    SmartInputMethodRanking(const SmartInputMethodConfig& config, Date now);

    /// The first `limit` applications.
    std::set<std::string> top(std::size_t limit) const;

    /// Whether a limit of the ranking lets the application pass: it is among the first `limit`, or
    /// no application has a rank. The result of `top`, for the cost of looking at those that could
    /// stand before this one; called for every decision that asks for a learned rule.
    bool admits(const std::string& bundleID, std::size_t limit) const;

private:
    struct Ranked {
        std::size_t score = 0;
        std::string_view bundleID{};
    };
    static bool isBefore(const Ranked& left, const Ranked& right);

    std::size_t recentCount(const std::vector<Date>& dates) const;
    std::size_t score(const std::string& bundleID) const;

    const SmartInputMethodConfig& config_;
    Date cutoff_;
};

} // namespace brindlex
