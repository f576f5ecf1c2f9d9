#pragma once

#include <cstdint>

namespace brindlex {

/// Virtual key codes of keys that the program knows by name, by the numbers of Carbon's
/// `HIToolbox/Events.h`: a place on the board, by what stands there on a US keyboard.
namespace virtualKey {

inline constexpr std::uint16_t a = 0;
inline constexpr std::uint16_t s = 1;
inline constexpr std::uint16_t v = 9;
inline constexpr std::uint16_t one = 18;
inline constexpr std::uint16_t two = 19;
inline constexpr std::uint16_t three = 20;
inline constexpr std::uint16_t four = 21;
inline constexpr std::uint16_t six = 22;
inline constexpr std::uint16_t five = 23;
inline constexpr std::uint16_t nine = 25;
inline constexpr std::uint16_t seven = 26;
inline constexpr std::uint16_t eight = 28;
inline constexpr std::uint16_t rightBracket = 30;
inline constexpr std::uint16_t leftBracket = 33;
inline constexpr std::uint16_t returnKey = 36;
inline constexpr std::uint16_t space = 49;
inline constexpr std::uint16_t deleteKey = 51;
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
/// Insert on the keyboard of a PC.
inline constexpr std::uint16_t help = 114;
inline constexpr std::uint16_t forwardDelete = 117;
inline constexpr std::uint16_t leftArrow = 123;
inline constexpr std::uint16_t rightArrow = 124;
inline constexpr std::uint16_t downArrow = 125;
inline constexpr std::uint16_t upArrow = 126;

} // namespace virtualKey

} // namespace brindlex
