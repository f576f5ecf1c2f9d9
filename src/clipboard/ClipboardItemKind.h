#pragma once

#include "foundation/JsonEnumeration.h"

namespace brindlex {

/// What an item of the clipboard history holds.
enum class ClipboardItemKind { text, image, file };

constexpr auto storedValues(std::type_identity<ClipboardItemKind>)
{
    return std::array{
        std::pair{ClipboardItemKind::text, "text"},
        std::pair{ClipboardItemKind::image, "image"},
        std::pair{ClipboardItemKind::file, "file"},
    };
}

} // namespace brindlex
