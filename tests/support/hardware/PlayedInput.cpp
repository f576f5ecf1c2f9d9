#include "support/hardware/PlayedInput.h"

#include "foundation/FatalError.h"
#include "support/hardware/Keycodes.h"

#include <array>
#include <cctype>
#include <string>
#include <xcb/xtest.h>

namespace brindlex {
namespace {

struct KeyRow {
    std::uint8_t first;
    std::string_view characters;
};

/// The rows of a US keyboard; X counts each row from left to right without a gap.
constexpr std::array rows{
    KeyRow{keycode::escape, "\x1b"},
    KeyRow{keycode::one, "1234567890-=\b\tqwertyuiop[]\n"},
    KeyRow{keycode::a, "asdfghjkl;'`"},
    KeyRow{keycode::backslash, "\\zxcvbnm,./"},
    KeyRow{keycode::space, " "},
};

} // namespace

std::uint8_t keyOf(char character)
{
    for (const auto& row : rows)
        if (const auto place = row.characters.find(character); place != std::string_view::npos)
            return static_cast<std::uint8_t>(row.first + place);
    return 0;
}

void PlayedInput::type(std::string_view text) const
{
    for (const auto character : text) {
        const auto isUpper = std::isupper(static_cast<unsigned char>(character)) != 0;
        const auto key
            = keyOf(static_cast<char>(std::tolower(static_cast<unsigned char>(character))));
        if (key == 0)
            fatalError("No key types '" + std::string(1, character) + "'.");
        if (isUpper)
            pressKey(keycode::shift);
        pressKey(key);
        releaseKey(key);
        if (isUpper)
            releaseKey(keycode::shift);
    }
    server_.sync();
}

void PlayedInput::pressKey(std::uint8_t key) const { play(XCB_KEY_PRESS, key); }

void PlayedInput::releaseKey(std::uint8_t key) const { play(XCB_KEY_RELEASE, key); }

void PlayedInput::showHand() const
{
    pressKey(keycode::pause);
    releaseKey(keycode::pause);
}

void PlayedInput::movePointer(int x, int y) const
{
    xcb_test_fake_input(server_.get(), XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, server_.root(),
        static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0);
    server_.sync();
}

void PlayedInput::click(int x, int y, std::uint8_t button) const
{
    movePointer(x, y);
    play(XCB_BUTTON_PRESS, button);
    play(XCB_BUTTON_RELEASE, button);
}

void PlayedInput::play(std::uint8_t type, std::uint8_t detail) const
{
    xcb_test_fake_input(server_.get(), type, detail, XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
    server_.sync();
}

} // namespace brindlex
