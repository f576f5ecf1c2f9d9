#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace brindlex {

/// Draws pictures as icons of one size. Main thread only.
class IconRendering {
public:
    /// The pixels of an icon in width and height.
    static constexpr int size = 64;

    virtual ~IconRendering() = default;

    /// The picture in the file as a PNG of `size` by `size` pixels with four samples of 8 bits
    /// each, the last of them alpha; nothing when the file has no picture.
    virtual std::optional<std::string> pictureInFile(const std::filesystem::path& file) = 0;

    /// The same of what the desktop shows for the application, which may be what it shows for any.
    virtual std::optional<std::string> pictureOfApplication(const std::filesystem::path& bundle)
        = 0;
};

} // namespace brindlex
