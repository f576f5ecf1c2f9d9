#pragma once

#include "foundation/Cases.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace brindlex {

/// What is told of a file that somebody only looks at.
struct FilePreview {
    struct Text {
        /// The beginning of the file, of `longestPreviewText` bytes at the most.
        std::string text{};
        bool operator==(const Text&) const = default;
    };
    struct Folder {
        /// How many entries it has, counted up to `mostPreviewEntries`.
        std::size_t entries = 0;
        bool operator==(const Folder&) const = default;
    };
    /// What is neither, or may not be read.
    struct Other {
        bool operator==(const Other&) const = default;
    };
    using Any = Cases<Text, Folder, Other>;
};

inline constexpr std::size_t longestPreviewText = 64 * 1024;
inline constexpr std::size_t mostPreviewEntries = 10'000;

/// Reads what there is of a file. A file is a text when its beginning is UTF-8 without a zero byte;
/// what would be waited for, such as a pipe, is not opened. Waits for the disk.
FilePreview::Any filePreview(const std::filesystem::path& file);

} // namespace brindlex
