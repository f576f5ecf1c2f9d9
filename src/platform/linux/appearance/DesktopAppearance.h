#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace brindlex {

/// The font that programs write with.
struct DesktopFont {
    /// Empty for the usual one.
    std::string family{};
    /// The size, within what windows are made for; 0 for the usual one.
    double points = 0;
    /// From 100 to 900; 400 is that of ordinary text.
    int weight = 400;
    bool isItalic = false;

    bool operator==(const DesktopFont&) const = default;
};

/// How the user wants programs to look.
struct DesktopAppearance {
    bool isDark = false;
    /// The accent colour in sRGB, 0x2a66dd; nothing where the desktop has none.
    std::optional<std::uint32_t> accent{};
    /// Whether nothing is to move by itself.
    bool reducesMotion = false;
    DesktopFont font{};
    /// How much larger text is than the font says, apart from all else.
    double textScale = 1;

    bool operator==(const DesktopAppearance&) const = default;
};

/// What one of the places where desktops keep the appearance says of it; nothing where it says
/// nothing, or only what stands for no wish.
struct StatedAppearance {
    std::optional<bool> isDark{};
    std::optional<std::uint32_t> accent{};
    std::optional<bool> reducesMotion{};
    std::optional<DesktopFont> font{};
    std::optional<double> textScale{};

    bool operator==(const StatedAppearance&) const = default;
};

} // namespace brindlex
