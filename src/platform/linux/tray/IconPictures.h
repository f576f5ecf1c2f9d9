#pragma once

#include <cstdint>
#include <span>

namespace brindlex {

/// The program's icon in one size.
struct IconPicture {
    /// Of each side, in pixels.
    int size = 0;
    /// Row by row, each 0xAARRGGBB; the colours are not multiplied by the alpha.
    const std::uint32_t* pixels = nullptr;
};

/// The program's icon as the build has drawn it of `resources/icons`, from the smallest size to the
/// largest.
std::span<const IconPicture> iconPictures();

} // namespace brindlex
