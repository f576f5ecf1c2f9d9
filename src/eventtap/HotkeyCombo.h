#pragma once

#include "eventtap/ModifierSet.h"
#include "foundation/JsonForm.h"

#include <cstddef>
#include <cstdint>
#include <functional>

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

} // namespace brindlex

template <>
struct std::hash<brindlex::HotkeyCombo> {
    std::size_t operator()(const brindlex::HotkeyCombo& combo) const noexcept
    {
        return std::hash<std::int64_t>()(combo.keyCode) * 31
            + std::hash<brindlex::ModifierSet>()(combo.modifiers);
    }
};
