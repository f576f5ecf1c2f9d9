#pragma once

#include "catalogue/texts/CatalogueRow.h"

#include <array>

namespace brindlex {

/// What controls and lists of all screens say.
inline constexpr auto controlsTexts = std::to_array<CatalogueRow>({
    {"controls.change", "Change"},
    {"controls.close", "Close"},
    {"controls.edit", "Edit"},
    {"controls.moveDown", "Move Down"},
    {"controls.moveUp", "Move Up"},
    {"controls.noMatch", "Nothing found"},
    {"controls.open", "Open"},
    {"controls.recorder.clear", "Clear shortcut"},
    {"controls.recorder.pressKey", "Press a key"},
    {"controls.recorder.record", "Record"},
    {"controls.remove", "Remove"},
    {"controls.removedFormat", "“%@” removed"},
    {"controls.undo", "Undo"},
});

} // namespace brindlex
