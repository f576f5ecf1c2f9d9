#pragma once

#include "foundation/JsonForm.h"
#include "foundation/Result.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// A version by Semantic Versioning 2.0.0 (https://semver.org).
struct SemanticVersion {
    std::uint64_t major = 0;
    std::uint64_t minor = 0;
    std::uint64_t patch = 0;
    /// The identifiers after "-"; none in a release.
    std::vector<std::string> preRelease{};
    /// What stands after "+"; it has no say in the precedence.
    std::string build{};

    bool operator==(const SemanticVersion&) const = default;

    /// Nothing for a text of any other form, or with a number beyond 64 bits.
    static std::optional<SemanticVersion> fromText(std::string_view text);

    /// The form that `fromText` reads.
    std::string text() const;
};

/// Whether the first version has the lower precedence: 1.0.0-alpha < 1.0.0-alpha.1 < 1.0.0.
bool precedes(const SemanticVersion& first, const SemanticVersion& second);

/// As its text.
template <>
struct JsonCoding<SemanticVersion> {
    static Json encode(const SemanticVersion& version);
    static Result<SemanticVersion, JsonProblem> decode(const Json& document);
};

} // namespace brindlex
