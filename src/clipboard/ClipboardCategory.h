#pragma once

#include "clipboard/ClipboardItem.h"

namespace brindlex {

/// Which items of the history a list shows. No item has one stored.
enum class ClipboardCategory { all, text, image, file };

constexpr auto storedValues(std::type_identity<ClipboardCategory>)
{
    return std::array{
        std::pair{ClipboardCategory::all, "all"},
        std::pair{ClipboardCategory::text, "text"},
        std::pair{ClipboardCategory::image, "image"},
        std::pair{ClipboardCategory::file, "file"},
    };
}

/// Whether the name of a file says that it is a picture.
bool isImagePath(std::string_view path);

/// Whether the category has the item. Files that are all pictures count as pictures, all other
/// files as files; files without a path are in `all` only.
bool isInCategory(const ClipboardItem& item, ClipboardCategory category);

} // namespace brindlex
