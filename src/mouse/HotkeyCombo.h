#pragma once

#include "foundation/JsonForm.h"
#include "mouse/ModifierSet.h"

#include <cstdint>

namespace brindlex {

/// A key with modifiers.
struct HotkeyCombo {
    /// The virtual key code, as a key event carries it.
    std::int64_t keyCode = 0;
    ModifierSet modifiers{};

    bool operator==(const HotkeyCombo&) const = default;

    static constexpr auto jsonForm()
    {
        return std::tuple{
            required("keyCode", &HotkeyCombo::keyCode),
            required("modifiers", &HotkeyCombo::modifiers),
        };
    }
};
static_assert(jsonFormIsComplete<HotkeyCombo>);

} // namespace brindlex
