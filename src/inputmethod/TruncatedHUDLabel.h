#pragma once

#include <string>
#include <string_view>

namespace brindlex {

/// The text as far as it fits on the overlay, followed by "..." where it was cut.
///
/// The overlay holds a cost of 60: an East Asian wide character costs 10, ASCII 3, everything else
/// 6. That is 20 ASCII characters or 6 ideographs.
std::string truncatedHUDLabel(std::string_view text);

} // namespace brindlex
