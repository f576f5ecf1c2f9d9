#pragma once

#include <string_view>

namespace brindlex {

/// The languages that there are translations for; English is the one of the table.
inline constexpr std::string_view catalogueLanguages[]
    = {"en", "zh-Hans", "zh-Hant", "ja", "fr", "es", "de", "ko"};

/// The translation of a language as JSON text; empty for English and for an unknown language.
std::string_view embeddedTranslation(std::string_view language);

/// The wordings that replace others on this system, in the same form: what a text says of a Mac it
/// has to say otherwise elsewhere. Empty for an unknown language.
std::string_view embeddedSystemWordings(std::string_view language);

} // namespace brindlex
