#pragma once

#include <cstdint>

namespace brindlex {

/// What the program's own events carry in the field `eventSourceUserData`, so that it knows them
/// again: eight ASCII bytes each.
namespace mouseEventTag {

/// On replayed clicks: "MOSEGSTR".
inline constexpr std::int64_t replay = 0x4D4F534547535452;

/// On scroll events: "MOSESCRL".
inline constexpr std::int64_t scroll = 0x4D4F53455343524C;

} // namespace mouseEventTag

} // namespace brindlex
