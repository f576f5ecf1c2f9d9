#include "mouse/PlainMouseActions.h"

#include "platform/Event.h"

#include <algorithm>
#include <array>

namespace brindlex {
namespace {

using Plain = MouseAction::Plain;
using Effect = MouseActionEffect;

constexpr std::uint16_t rightBracketKey = 30;
constexpr std::uint16_t leftBracketKey = 33;
constexpr std::uint16_t f11Key = 103;

} // namespace

std::span<const PlainMouseAction> plainMouseActions()
{
    static const std::array<PlainMouseAction, 6> rows{{
        {Plain::missionControl, "missionControl", "Mission Control",
            Effect::OpenApplication{"/System/Applications/Mission Control.app"}},
        {Plain::back, "back", "Back", Effect::PostKeystroke{leftBracketKey, eventFlag::command}},
        {Plain::forward, "forward", "Forward",
            Effect::PostKeystroke{rightBracketKey, eventFlag::command}},
        {Plain::showDesktop, "showDesktop", "Show Desktop", Effect::PostKeystroke{f11Key, 0}},
        {Plain::switchSpaceLeft, "switchSpaceLeft", "Switch Space Left",
            Effect::SwitchSpace{false}},
        {Plain::switchSpaceRight, "switchSpaceRight", "Switch Space Right",
            Effect::SwitchSpace{true}},
    }};
    return rows;
}

const PlainMouseAction& plainMouseAction(MouseAction::Plain action)
{
    return *std::ranges::find(plainMouseActions(), action, &PlainMouseAction::action);
}

} // namespace brindlex
