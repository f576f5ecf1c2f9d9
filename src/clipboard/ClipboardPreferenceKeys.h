#pragma once

#include "eventtap/HotkeyCombo.h"
#include "preferences/PreferenceKey.h"

#include <cstdint>

namespace brindlex {

extern template struct PreferenceForm<HotkeyCombo>;

/// The preferences of the clipboard history.
struct ClipboardPreferenceKeys {
    PreferenceKey<bool> clipboardHistoryEnabled{true, "clipboardHistoryEnabled"};
    PreferenceKey<bool> clipboardAutoPaste{true, "clipboardAutoPaste"};
    PreferenceKey<std::int64_t> clipboardMaxItems{200, "clipboardMaxItems"};
    /// Command, shift and the key V.
    PreferenceKey<HotkeyCombo> clipboardHotkey{
        {9, ModifierSet::command | ModifierSet::shift}, "clipboardHotkey"};
};

} // namespace brindlex
