#pragma once

#include "clipboard/ClipboardColour.h"
#include "clipboard/ClipboardItem.h"
#include "foundation/Cases.h"

#include <cstddef>
#include <optional>
#include <string>

namespace brindlex {

/// What a row of the picker says of an item, in one line.
struct ClipboardItemDescription {
    struct Text {
        /// The beginning of the text, of `longestClipboardLine` characters at the most; a text that
        /// goes on ends with "…". Empty of a text that has nothing to be seen.
        std::string line{};
        /// Of a text that is a colour.
        std::optional<ClipboardColour> colour{};
        bool operator==(const Text&) const = default;
    };
    struct Picture {
        bool operator==(const Picture&) const = default;
    };
    struct Files {
        /// Of the first file.
        std::string name{};
        /// The folder that it is in.
        std::string folder{};
        std::size_t count = 0;
        bool operator==(const Files&) const = default;
    };
    using Any = Cases<Text, Picture, Files>;
};

inline constexpr std::size_t longestClipboardLine = 200;

/// Costs the same however long a text is: only its beginning is read.
ClipboardItemDescription::Any clipboardItemDescription(const ClipboardItem& item);

} // namespace brindlex
