#pragma once

#include "foundation/Result.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace brindlex {

/// A text in one language. Where a language has plural forms, one wording for each category of
/// them ("one", "other", … as in CLDR); else one wording under "other".
struct Wording {
    std::map<std::string, std::string, std::less<>> forms{};

    bool operator==(const Wording&) const = default;

    /// The wording for a number in a language; "other" for a category that has none.
    std::string_view form(std::string_view category) const;
};

/// The wordings of one language by key.
using Translation = std::map<std::string, Wording, std::less<>>;

/// Reads a JSON object that has for each key a text, or an object of texts by plural category, one
/// of which is "other". The problem says what is wrong and where.
Result<Translation, std::string> parseTranslation(std::string_view text);

/// The plural category of a number in a language: "one", "few", "other" …
std::string pluralCategory(const std::string& language, std::int64_t number);

} // namespace brindlex
