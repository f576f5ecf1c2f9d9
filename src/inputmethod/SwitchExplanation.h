#pragma once

#include "foundation/Cases.h"
#include "foundation/Date.h"
#include "inputmethod/SwitchReasons.h"

#include <cstddef>
#include <optional>
#include <string>

namespace brindlex {

/// What there is to say about why an application has its input source.
struct SwitchExplanation {
    /// No rule has switched for it.
    struct NotUsedYet {
        bool operator==(const NotUsedYet&) const = default;
    };
    struct ManualRule {
        Date usedAt{};
        bool operator==(const ManualRule&) const = default;
    };
    struct LearnedRule {
        /// How many changes by hand it was made from.
        std::size_t changes = 0;
        Date usedAt{};
        bool operator==(const LearnedRule&) const = default;
    };
    struct WebsiteRule {
        std::string domainSuffix{};
        Date usedAt{};
        bool operator==(const WebsiteRule&) const = default;
    };
    /// The user has changed what a rule had selected, which stands.
    struct Overridden {
        Date at{};
        bool operator==(const Overridden&) const = default;
    };

    using Any = Cases<NotUsedYet, ManualRule, LearnedRule, WebsiteRule, Overridden>;
};

SwitchExplanation::Any explanation(const std::optional<SwitchReason>& reason);

} // namespace brindlex
