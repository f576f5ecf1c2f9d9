#pragma once

#include <cstdint>

namespace brindlex {

/// Virtual key codes of keys that the program knows by name, by the numbers of Carbon's
/// `HIToolbox/Events.h`: a place on the board, by what stands there on a US keyboard.
namespace virtualKey {

inline constexpr std::uint16_t a = 0;
inline constexpr std::uint16_t s = 1;
inline constexpr std::uint16_t rightBracket = 30;
inline constexpr std::uint16_t leftBracket = 33;
inline constexpr std::uint16_t escape = 53;
inline constexpr std::uint16_t rightCommand = 54;
inline constexpr std::uint16_t command = 55;
inline constexpr std::uint16_t shift = 56;
inline constexpr std::uint16_t capsLock = 57;
inline constexpr std::uint16_t option = 58;
inline constexpr std::uint16_t control = 59;
inline constexpr std::uint16_t rightShift = 60;
inline constexpr std::uint16_t rightOption = 61;
inline constexpr std::uint16_t rightControl = 62;
inline constexpr std::uint16_t function = 63;
inline constexpr std::uint16_t f11 = 103;
inline constexpr std::uint16_t leftArrow = 123;
inline constexpr std::uint16_t rightArrow = 124;

} // namespace virtualKey

} // namespace brindlex
