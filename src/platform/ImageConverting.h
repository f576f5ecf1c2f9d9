#pragma once

#include "foundation/Result.h"

#include <string>
#include <string_view>

namespace brindlex {

/// Why there is no PNG of a picture: its bytes are none that the system can read, or what it has
/// read cannot be written.
enum class ImageProblem { noPicture, notWritten };

/// Turns pictures of other formats into PNG. Main thread only.
class ImageConverting {
public:
    virtual ~ImageConverting() = default;

    /// The picture of a file's bytes, such as those of a TIFF or a JPEG, as PNG with as many
    /// pixels.
    virtual Result<std::string, ImageProblem> pngOf(std::string_view picture) = 0;
};

} // namespace brindlex
