#pragma once

#include "support/screen/DesktopWindows.h"
#include "support/screen/XConnection.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <vector>

namespace brindlex {

/// What a part of the screen looks like.
class Screenshot {
public:
    using Pixel = std::array<std::uint8_t, 3>;

    /// Takes the whole screen.
    explicit Screenshot(const XConnection& server);
    Screenshot(const XConnection& server, const ScreenArea& area);

    int width() const { return width_; }
    int height() const { return height_; }
    /// Red, green and blue at a place within.
    Pixel at(int x, int y) const;
    /// How many pixels differ from one of the same size.
    int differencesFrom(const Screenshot& other) const;

    /// Writes it as PNG; whether that succeeded.
    bool save(const std::filesystem::path& file) const;

private:
    int width_;
    int height_;
    std::vector<Pixel> pixels_;
};

/// Waits until that part of the screen no longer changes; false when it goes on and on.
bool comesToRest(const XConnection& server, const ScreenArea& area);

} // namespace brindlex
