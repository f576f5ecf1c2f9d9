#pragma once

#include <cstdint>
#include <linux/input-event-codes.h>

namespace brindlex {

/// Keys as X counts them, by what stands on them on a US keyboard: X adds 8 to the kernel's
/// numbers.
namespace keycode {

inline constexpr std::uint8_t escape = KEY_ESC + 8;
inline constexpr std::uint8_t one = KEY_1 + 8;
inline constexpr std::uint8_t tab = KEY_TAB + 8;
inline constexpr std::uint8_t q = KEY_Q + 8;
inline constexpr std::uint8_t t = KEY_T + 8;
inline constexpr std::uint8_t y = KEY_Y + 8;
inline constexpr std::uint8_t enter = KEY_ENTER + 8;
inline constexpr std::uint8_t control = KEY_LEFTCTRL + 8;
inline constexpr std::uint8_t a = KEY_A + 8;
inline constexpr std::uint8_t s = KEY_S + 8;
inline constexpr std::uint8_t d = KEY_D + 8;
inline constexpr std::uint8_t shift = KEY_LEFTSHIFT + 8;
inline constexpr std::uint8_t backslash = KEY_BACKSLASH + 8;
inline constexpr std::uint8_t alt = KEY_LEFTALT + 8;
inline constexpr std::uint8_t space = KEY_SPACE + 8;
inline constexpr std::uint8_t f1 = KEY_F1 + 8;
inline constexpr std::uint8_t f2 = KEY_F2 + 8;
inline constexpr std::uint8_t capsLock = KEY_CAPSLOCK + 8;
inline constexpr std::uint8_t numLock = KEY_NUMLOCK + 8;
inline constexpr std::uint8_t up = KEY_UP + 8;
inline constexpr std::uint8_t left = KEY_LEFT + 8;
inline constexpr std::uint8_t right = KEY_RIGHT + 8;
inline constexpr std::uint8_t end = KEY_END + 8;
inline constexpr std::uint8_t down = KEY_DOWN + 8;
inline constexpr std::uint8_t pause = KEY_PAUSE + 8;
inline constexpr std::uint8_t super = KEY_LEFTMETA + 8;

} // namespace keycode

} // namespace brindlex
