#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// What stands on the keys of a keyboard that write no letter.
inline constexpr auto keysTexts = std::to_array<CatalogueRow>({
    {"keys.control", "Ctrl"},
    {"keys.delete", "Delete"},
    {"keys.down", "Down"},
    {"keys.escape", "Escape"},
    {"keys.left", "Left"},
    {"keys.numberFormat", "Key %lld"},
    {"keys.option", "Alt"},
    {"keys.return", "Return"},
    {"keys.right", "Right"},
    {"keys.shift", "Shift"},
    {"keys.space", "Space"},
    {"keys.super", "Super"},
    {"keys.tab", "Tab"},
    {"keys.up", "Up"},
});

} // namespace brindlex
