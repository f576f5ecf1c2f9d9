#include "mouse/PlainMouseActions.h"

#include "platform/Event.h"
#include "platform/VirtualKey.h"

#include <algorithm>
#include <array>

namespace brindlex {

std::span<const PlainMouseAction> plainMouseActions()
{
    using Plain = MouseAction::Plain;
    using Effect = MouseActionEffect;
    static const std::array<PlainMouseAction, 6> rows{{
        {Plain::missionControl, "missionControl", "Mission Control",
            Effect::OpenApplication{"/System/Applications/Mission Control.app"}},
        {Plain::back, "back", "Back",
            Effect::PostKeystroke{virtualKey::leftBracket, eventFlag::command}},
        {Plain::forward, "forward", "Forward",
            Effect::PostKeystroke{virtualKey::rightBracket, eventFlag::command}},
        {Plain::showDesktop, "showDesktop", "Show Desktop",
            Effect::PostKeystroke{virtualKey::f11, 0}},
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
