#include "platform/linux/appearance/GtkAppearance.h"

#include "foundation/Text.h"
#include "platform/linux/appearance/FontDescription.h"
#include "platform/linux/files/KeyFileLines.h"

namespace brindlex {
namespace {

/// The words of GTK, from wherever.
struct GtkWords {
    std::optional<std::string> theme{};
    std::optional<bool> prefersDark{};
    std::optional<std::string> font{};
    std::optional<bool> isAnimated{};
};

StatedAppearance stated(const GtkWords& words)
{
    StatedAppearance appearance;
    if (words.theme || words.prefersDark)
        appearance.isDark
            = words.prefersDark.value_or(false) || isDarkTheme(words.theme.value_or(""));
    if (words.isAnimated)
        appearance.reducesMotion = !*words.isAnimated;
    if (words.font)
        appearance.font = pangoFont(*words.font);
    return appearance;
}

std::optional<bool> truthOf(std::optional<std::int32_t> number)
{
    return number ? std::optional(*number != 0) : std::nullopt;
}

/// As GTK reads it; nothing for any other word.
std::optional<bool> truthOf(std::string_view word)
{
    const auto lower = lowercased(word);
    if (lower == "1" || lower == "true")
        return true;
    if (lower == "0" || lower == "false")
        return false;
    return {};
}

} // namespace

bool isDarkTheme(std::string_view name)
{
    const auto lower = lowercased(name);
    constexpr std::string_view dark = "dark";
    const auto isLetterAt
        = [&](std::size_t at) { return at < lower.size() && lower[at] >= 'a' && lower[at] <= 'z'; };
    for (auto at = lower.find(dark); at != lower.npos; at = lower.find(dark, at + 1))
        if ((at == 0 || !isLetterAt(at - 1)) && !isLetterAt(at + dark.size()))
            return true;
    return lower == "highcontrastinverse";
}

StatedAppearance gtkAppearance(const XSettings& settings)
{
    const auto animated = numberOf(settings, "Gtk/EnableAnimations");
    auto appearance = stated({
        .theme = textOf(settings, "Net/ThemeName"),
        .prefersDark = truthOf(numberOf(settings, "Gtk/ApplicationPreferDarkTheme")),
        .font = textOf(settings, "Gtk/FontName"),
        .isAnimated = truthOf(animated ? animated : numberOf(settings, "Net/EnableAnimations")),
    });
    if (numberOf(settings, "Xft/DPI"))
        appearance.textScale = 1;
    return appearance;
}

StatedAppearance gtkFileAppearance(std::string_view text)
{
    const auto value = [&](std::string_view key) { return keyFileValue(text, "Settings", key); };
    const auto words = [&](std::string_view key) {
        const auto found = value(key);
        return found ? std::optional(wellFormed(*found)) : std::nullopt;
    };
    return stated({
        .theme = words("gtk-theme-name"),
        .prefersDark = truthOf(value("gtk-application-prefer-dark-theme").value_or("")),
        .font = words("gtk-font-name"),
        .isAnimated = truthOf(value("gtk-enable-animations").value_or("")),
    });
}

} // namespace brindlex
