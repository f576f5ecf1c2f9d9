#pragma once

#include "platform/SyntheticEvent.h"

#include <array>
#include <cstdint>

namespace brindlex {

/// What the keystroke by which the program pastes carries in the field `eventSourceUserData`, so
/// that it knows it again: "MOSEPSTE".
inline constexpr std::int64_t pasteEventTag = 0x4D4F534550535445;

/// The press and the release of a key with exactly these flags, in the order in which they are to
/// be posted: the keystroke by which an application pastes.
std::array<SyntheticEvent, 2> pasteKeystroke(std::int64_t keyCode, std::uint64_t flags);

} // namespace brindlex
