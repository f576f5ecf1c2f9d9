#pragma once

#include <string>
#include <string_view>

namespace brindlex {

/// The text without case, accents and compatibility forms, as a search compares it: "Éditeur" and
/// "editeur" are the same.
std::string foldedText(std::string_view text);

} // namespace brindlex
