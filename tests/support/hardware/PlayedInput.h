#pragma once

#include "support/screen/XConnection.h"

#include <cstdint>
#include <string_view>

namespace brindlex {

/// Keys and clicks as a user's hands make them, played into the X server.
///
/// A key is a place on the board: what it types is up to the layout in force, which is never
/// touched.
class PlayedInput {
public:
    explicit PlayedInput(const XConnection& server) : server_(server) { }

    /// Presses and releases the keys that type this on a US keyboard: `a`-`z`, `A`-`Z`, `0`-`9`,
    /// space, new line, backspace (`\b`), escape (`\x1b`) and `.,-/;'`.
    void type(std::string_view text) const;

    void pressKey(std::uint8_t key) const;
    void releaseKey(std::uint8_t key) const;

    /// Presses and releases a key that types nothing: the hand of whoever chooses something.
    void showHand() const;

    void movePointer(int x, int y) const;
    /// Moves there and presses and releases a button, 1 being the left one.
    void click(int x, int y, std::uint8_t button = 1) const;

private:
    void play(std::uint8_t type, std::uint8_t detail) const;

    const XConnection& server_;
};

/// The key that types the character on a US keyboard, as X counts keys; 0 when none does.
std::uint8_t keyOf(char character);

} // namespace brindlex
