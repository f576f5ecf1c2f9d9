#pragma once

#include "support/screen/XConnection.h"

#include <cstdint>
#include <string>

namespace brindlex {

/// A window over the whole screen that shows the mouse cursors that a test wants to see.
class CursorWindow {
public:
    explicit CursorWindow(const XConnection& server);
    ~CursorWindow();
    CursorWindow(const CursorWindow&) = delete;
    CursorWindow& operator=(const CursorWindow&) = delete;

    /// Shows a picture of the X server's cursor font, under the name that a toolkit would give the
    /// cursor; without a name, as programs of old do, where that is empty.
    void show(std::uint16_t glyph, const std::string& name) const;

private:
    const XConnection& server_;
    xcb_window_t window_;
    xcb_font_t font_;
};

/// Pictures of the cursor font.
namespace cursorGlyph {
inline constexpr std::uint16_t handTwo = 60;
inline constexpr std::uint16_t leftPointer = 68;
inline constexpr std::uint16_t horizontalDoubleArrow = 108;
inline constexpr std::uint16_t verticalDoubleArrow = 116;
} // namespace cursorGlyph

} // namespace brindlex
