#include "platform/linux/appearance/AppearanceChoice.h"

#include "foundation/Text.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace brindlex {
namespace {

constexpr std::array<std::string_view, 3> gnomeNames{"GNOME", "Unity", "Pantheon"};

/// What the first of the sources says of a part that says something; nothing where none does.
template <typename Value>
std::optional<Value> firstOf(std::optional<Value> StatedAppearance::*part,
    std::initializer_list<const StatedAppearance*> sources)
{
    const auto found = std::ranges::find_if(
        sources, [part](const auto* source) { return (source->*part).has_value(); });
    return found == sources.end() ? std::nullopt : (*found)->*part;
}

} // namespace

DesktopFamily desktopFamily(std::string_view currentDesktop)
{
    for (const auto& name : split(currentDesktop, ':')) {
        if (name == "KDE")
            return DesktopFamily::kde;
        if (std::ranges::find(gnomeNames, name) != gnomeNames.end())
            return DesktopFamily::gnome;
    }
    return DesktopFamily::other;
}

DesktopAppearance chosenAppearance(const AppearanceSources& sources, DesktopFamily family)
{
    const StatedAppearance silent;
    const auto* const portal = &sources.portal;
    const auto* const gnome = family == DesktopFamily::gnome ? portal : &silent;
    const auto* const kde = family == DesktopFamily::kde ? &sources.kde : &silent;
    const auto* const xSettings = &sources.xSettings;
    const auto inOrder = [&](auto part, const StatedAppearance* first) {
        return firstOf(part, {first, kde, xSettings, &sources.gtk4, &sources.gtk3});
    };
    using Stated = StatedAppearance;
    return {
        .isDark = inOrder(&Stated::isDark, portal).value_or(false),
        .accent = firstOf(&Stated::accent, {portal, kde}),
        .reducesMotion = inOrder(&Stated::reducesMotion, portal).value_or(false),
        .font = inOrder(&Stated::font, gnome).value_or(DesktopFont{}),
        .textScale = firstOf(&Stated::textScale, {xSettings, gnome}).value_or(1),
    };
}

} // namespace brindlex
