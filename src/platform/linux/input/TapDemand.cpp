#include "platform/linux/input/TapDemand.h"

#include "platform/linux/input/VirtualKeyCodes.h"
#include "platform/linux/x11/X11Buttons.h"

namespace brindlex {
namespace {

constexpr EventMask wheel = eventMask(EventType::scrollWheel);
constexpr EventMask mice = mouseButtonMask | wheel | eventMask(EventType::mouseMoved);
constexpr EventMask keyboards = keyMask | eventMask(EventType::flagsChanged);

void add(TapDemand& demand, const EventInterest& interest)
{
    if (!interest.triggers) {
        demand.takesMice |= (interest.mask & mice) != 0;
        demand.takesKeyboards |= (interest.mask & keyboards) != 0;
        return;
    }
    // The wheel turns at once: there is no press from which on it could be taken.
    demand.takesMice |= interest.triggers->wheel && (interest.mask & wheel) != 0;
    for (const auto& button : interest.triggers->buttons)
        if (const auto number = buttonOfNumber(button.number);
            number != 0 && (interest.mask & eventMask(mouseDownType(button.number))) != 0)
            demand.buttons.insert({number, button.modifierFlags});
    if ((interest.mask & eventMask(EventType::keyDown)) == 0)
        return;
    for (const auto& key : interest.triggers->keys)
        for (const auto keycode : keycodesOf(key.keyCode))
            demand.keys.insert({keycode, key.modifierFlags});
}

} // namespace

TapDemand demandOf(std::span<const EventInterest> interests)
{
    TapDemand demand;
    for (const auto& interest : interests)
        add(demand, interest);
    if (demand.takesMice)
        demand.buttons.clear();
    if (demand.takesKeyboards)
        demand.keys.clear();
    // With any modifiers includes with these.
    std::erase_if(demand.buttons, [&](const TapDemand::Trigger& trigger) {
        return trigger.second && demand.buttons.contains({trigger.first, std::nullopt});
    });
    return demand;
}

} // namespace brindlex
