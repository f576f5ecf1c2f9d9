#pragma once

#include "foundation/JsonForm.h"
#include "foundation/Uuid.h"
#include "platform/InputSourceIdentifiers.h"

#include <cstddef>
#include <functional>
#include <string>

namespace brindlex {

/// One website, with everything below its domain, uses one input source.
struct DomainInputMethodRule {
    /// Identity in lists, fixed at creation.
    Uuid id{};
    /// A domain in the form that `normalizedDomain` gives.
    std::string domainSuffix{};
    std::string inputSourceID{};

    bool operator==(const DomainInputMethodRule&) const = default;

    /// A source may be written in any of the spellings that input methods have for it.
    void afterDecoding() { inputSourceID = canonicalSourceID(inputSourceID); }

    static constexpr auto jsonForm()
    {
        return std::tuple{
            required("id", &DomainInputMethodRule::id),
            required("domainSuffix", &DomainInputMethodRule::domainSuffix),
            required("inputSourceID", &DomainInputMethodRule::inputSourceID),
        };
    }
};

} // namespace brindlex

template <>
struct std::hash<brindlex::DomainInputMethodRule> {
    std::size_t operator()(const brindlex::DomainInputMethodRule& rule) const noexcept
    {
        return std::hash<brindlex::Uuid>{}(rule.id);
    }
};
