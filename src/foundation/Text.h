#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// Text is UTF-8. Bytes that are not are read as U+FFFD, one for each maximal ill-formed part, and
/// the program never writes such bytes.

/// The text as Unicode scalars.
std::u32string scalars(std::string_view text);

/// The scalars as UTF-8.
std::string utf8(std::u32string_view scalars);

/// The text with every ill-formed part replaced by U+FFFD.
std::string wellFormed(std::string_view text);

/// Whether the text has no ill-formed part.
bool isWellFormed(std::string_view text);

/// The text without white space and newlines (Unicode property White_Space) at both ends.
std::string trimmed(std::string_view text);

/// The text in lower case, without regard to a language.
std::string lowercased(std::string_view text);

/// The text in upper case, without regard to a language.
std::string uppercased(std::string_view text);

/// The pieces between the separators; empty pieces are kept, so there is always at least one.
std::vector<std::string> split(std::string_view text, char separator);

/// The text as the characters that a reader sees: extended grapheme clusters, as ranges of `text`.
std::vector<std::string_view> characters(std::string_view text);

/// The text, or nothing in place of an empty one.
std::optional<std::string> unlessEmpty(std::string text);

/// What a hexadecimal digit stands for, in either case; nothing for any other character.
std::optional<std::uint8_t> hexDigitValue(char digit);

bool isWhiteSpace(char32_t scalar);

/// A letter of any script (Unicode property Alphabetic).
bool isLetter(char32_t scalar);

/// A number of any script: the general category N.
bool isNumber(char32_t scalar);

/// A letter, a mark or a number of any script: the general categories L, M and N.
bool isAlphanumeric(char32_t scalar);

} // namespace brindlex
