#include "ui/theme/ThemeTokens.h"

#include <algorithm>
#include <initializer_list>

namespace brindlex {
namespace {

constexpr double textContrast = 4.5;
constexpr double shapeContrast = 3.0;
/// Fine enough to meet both contrasts of a filled shape, between which there is little room.
constexpr double lightnessStep = 0.002;

constexpr ThemeTokens lightTokens{
    .window = Colour::fromHex(0xf4f4f6),
    .card = Colour::fromHex(0xffffff),
    .bar = Colour::fromHex(0xfafafb),
    .soft = Colour::fromHex(0xeeeef2),
    .hover = Colour::fromHex(0xf6f6f8),
    .select = Colour::fromHex(0xdfe9fd),
    .line = Colour::fromHex(0xe6e6ea),
    .edge = Colour::fromHex(0x8c8d96),
    .track = Colour::fromHex(0xd3d4db),
    .accent = Colour::fromHex(0x2a66dd),
    .text = Colour::fromHex(0x1c1c1f),
    .subdued = Colour::fromHex(0x5c5d66),
    .accentText = Colour::fromHex(0x1d5bd0),
    .warning = Colour::fromHex(0x8a5200),
    .success = Colour::fromHex(0x17703a),
    .danger = Colour::fromHex(0xba2525),
};

constexpr ThemeTokens darkTokens{
    .window = Colour::fromHex(0x1e1f22),
    .card = Colour::fromHex(0x2a2b2f),
    .bar = Colour::fromHex(0x26272a),
    .soft = Colour::fromHex(0x3a3b41),
    .hover = Colour::fromHex(0x313237),
    .select = Colour::fromHex(0x2c3e60),
    .line = Colour::fromHex(0x3b3c42),
    .edge = Colour::fromHex(0x7b7c85),
    .track = Colour::fromHex(0x4b4c54),
    .accent = Colour::fromHex(0x3a70e2),
    .text = Colour::fromHex(0xf1f1f3),
    .subdued = Colour::fromHex(0xb0b1b9),
    .accentText = Colour::fromHex(0x8ab4ff),
    .warning = Colour::fromHex(0xf2bb5c),
    .success = Colour::fromHex(0x69d394),
    .danger = Colour::fromHex(0xff9a91),
};

/// The colour, darker or lighter by as little as gives it this contrast with all of these.
Colour distinct(Colour colour, std::initializer_list<Colour> others, double least, double step)
{
    const auto isDistinct = [&](Colour candidate) {
        return std::all_of(others.begin(), others.end(),
            [&](Colour other) { return contrast(candidate, other) >= least; });
    };
    auto found = colour;
    for (auto lightness = lightnessOf(colour);
         !isDistinct(found) && lightness >= 0 && lightness <= 1; lightness += step)
        found = withLightness(colour, std::clamp(lightness + step, 0.0, 1.0));
    return found;
}

} // namespace

ThemeTokens themeTokens(Brightness brightness, std::optional<Colour> accent)
{
    auto tokens = brightness == Brightness::dark ? darkTokens : lightTokens;
    if (!accent)
        return tokens;
    const auto shape = distinct(*accent, {tokens.card}, shapeContrast,
        brightness == Brightness::dark ? lightnessStep : -lightnessStep);
    tokens.accent = distinct(shape, {white}, textContrast, -lightnessStep);
    tokens.accentText = distinct(*accent,
        {tokens.window, tokens.card, tokens.bar, tokens.soft, tokens.hover, tokens.select},
        textContrast, brightness == Brightness::dark ? lightnessStep : -lightnessStep);
    return tokens;
}

} // namespace brindlex
