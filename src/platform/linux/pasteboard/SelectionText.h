#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

/// The text of a selection's bytes, which is well-formed, without a zero at its end. Targets that
/// say nothing of their encoding are read as UTF-8 where they are that, else as Latin-1.
std::string textOfSelection(std::string_view target, std::string_view bytes);

/// The text, which is well-formed, in Latin-1; nothing where it has other characters.
std::optional<std::string> latin1(std::string_view text);

} // namespace brindlex
