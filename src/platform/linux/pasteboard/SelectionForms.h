#pragma once

#include "platform/PasteboardState.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// The targets under which the program offers a state to other applications, the best first: its
/// text, its files and their paths as text, and its pictures.
std::vector<std::string> selectionTargetsOf(const PasteboardState& state);

/// The bytes of the state in the form of a target; nothing for one that is not offered.
std::optional<std::string> selectionForm(const PasteboardState& state, std::string_view target);

} // namespace brindlex
