#pragma once

#include <cstdint>

namespace brindlex {

/// Keys as X counts them, by what stands on them on a US keyboard.
namespace keycode {

inline constexpr std::uint8_t escape = 9;
inline constexpr std::uint8_t tab = 23;
inline constexpr std::uint8_t q = 24;
inline constexpr std::uint8_t y = 29;
inline constexpr std::uint8_t enter = 36;
inline constexpr std::uint8_t control = 37;
inline constexpr std::uint8_t a = 38;
inline constexpr std::uint8_t d = 40;
inline constexpr std::uint8_t shift = 50;
inline constexpr std::uint8_t alt = 64;
inline constexpr std::uint8_t capsLock = 66;
inline constexpr std::uint8_t numLock = 77;
inline constexpr std::uint8_t up = 111;
inline constexpr std::uint8_t right = 114;
inline constexpr std::uint8_t end = 115;
inline constexpr std::uint8_t down = 116;
inline constexpr std::uint8_t super = 133;

} // namespace keycode

} // namespace brindlex
