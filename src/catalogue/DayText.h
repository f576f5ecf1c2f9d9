#pragma once

#include <string>
#include <string_view>

namespace brindlex {

/// A day in the words of the language, "22. November 2026" for "2026-11-22"; a text that is no such
/// day as it stands. The language is one of the catalogue's, English for any other.
std::string dayText(const std::string& language, std::string_view day);

} // namespace brindlex
