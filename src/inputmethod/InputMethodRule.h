#pragma once

#include "applications/AppIdentifier.h"
#include "foundation/JsonForm.h"
#include "foundation/Uuid.h"
#include "platform/InputSourceIdentifiers.h"

#include <cstddef>
#include <functional>
#include <string>

namespace brindlex {

/// One application uses one input source.
struct InputMethodRule {
    /// Identity in lists, fixed at creation.
    Uuid id{};
    AppIdentifier app{};
    std::string inputSourceID{};

    bool operator==(const InputMethodRule&) const = default;

    /// A source may be written in any of the spellings that input methods have for it.
    void afterDecoding() { inputSourceID = canonicalSourceID(inputSourceID); }

    static constexpr auto jsonForm()
    {
        return std::tuple{
            required("id", &InputMethodRule::id),
            required("app", &InputMethodRule::app),
            required("inputSourceID", &InputMethodRule::inputSourceID),
        };
    }
};

} // namespace brindlex

template <>
struct std::hash<brindlex::InputMethodRule> {
    std::size_t operator()(const brindlex::InputMethodRule& rule) const noexcept
    {
        return std::hash<brindlex::Uuid>{}(rule.id);
    }
};
