#include "app/linux/DesktopLook.h"

#include "platform/linux/appearance/FontDescription.h"
#include "ui/controls/TextSize.h"

#include <algorithm>

namespace brindlex {
namespace {

/// What a window may take of the screen, with its frame.
constexpr double roomForWindow = 0.9;

/// GTK's name for what fontconfig and Qt call otherwise.
QString familyOf(const DesktopFont& font)
{
    return QString::fromStdString(font.family == "Sans" ? "Sans Serif" : font.family);
}

} // namespace

Theme::Look lookFor(const DesktopAppearance& appearance)
{
    const auto accent
        = appearance.accent ? std::optional(Colour::fromHex(*appearance.accent)) : std::nullopt;
    return {themeTokens(appearance.isDark ? Brightness::dark : Brightness::light, accent),
        appearance.reducesMotion};
}

QFont fontFor(const DesktopAppearance& appearance, const QFont& usual)
{
    auto font = usual;
    const auto& wanted = appearance.font;
    if (!wanted.family.empty())
        font.setFamily(familyOf(wanted));
    font.setWeight(static_cast<QFont::Weight>(wanted.weight));
    font.setItalic(wanted.isItalic);
    const double points = wanted.points > 0 ? wanted.points : usual.pointSizeF();
    if (points > 0)
        font.setPointSizeF(
            std::clamp(points * appearance.textScale, leastFontPoints, mostFontPoints));
    return font;
}

QSize openingSize(const QSize& designed, const QSize& screen)
{
    return grownWithText(designed).boundedTo(screen * roomForWindow).expandedTo(designed);
}

} // namespace brindlex
