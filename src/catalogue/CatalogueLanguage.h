#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// The language of the catalogue that a user with these languages reads, the preferred one first;
/// "en" when the catalogue speaks none of them.
///
/// A language is named as in "de", "de-AT", "zh-Hant-TW" or "zh_TW.UTF-8". Chinese is traditional
/// where the script says so or, without one, the region is Taiwan, Hong Kong or Macao, and else
/// simplified.
std::string catalogueLanguage(const std::vector<std::string>& preferred);

} // namespace brindlex
