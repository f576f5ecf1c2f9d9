#include "platform/linux/input/X11PointerMap.h"

#include <utility>

namespace brindlex {

X11PointerMap::X11PointerMap(std::vector<std::uint8_t> meanings)
    : meanings_(std::move(meanings)) { }

std::uint8_t X11PointerMap::meaningOf(std::uint8_t button) const
{
    return button == 0 || button > meanings_.size() ? button : meanings_[button - 1U];
}

std::vector<std::uint8_t> X11PointerMap::buttonsFor(std::uint8_t meaning) const
{
    std::vector<std::uint8_t> buttons;
    for (std::size_t index = 0; index < meanings_.size(); ++index)
        if (meanings_[index] == meaning)
            buttons.push_back(static_cast<std::uint8_t>(index + 1));
    if (meaning > meanings_.size())
        buttons.push_back(meaning);
    return buttons;
}

TapDemand X11PointerMap::ofHand(const TapDemand& demand) const
{
    auto ofHand = demand;
    ofHand.buttons.clear();
    for (const auto& [meaning, modifiers] : demand.buttons)
        for (const auto button : buttonsFor(meaning))
            ofHand.buttons.insert({button, modifiers});
    return ofHand;
}

X11PointerMap pointerMap(X11Connection& connection)
{
    auto* const server = connection.get();
    const X11Message<xcb_get_pointer_mapping_reply_t> reply(
        xcb_get_pointer_mapping_reply(server, xcb_get_pointer_mapping(server), nullptr));
    if (!reply)
        return {};
    const auto* const first = xcb_get_pointer_mapping_map(reply.get());
    return X11PointerMap({first, first + xcb_get_pointer_mapping_map_length(reply.get())});
}

bool isPointerMapChange(const xcb_generic_event_t& event)
{
    return (event.response_type & 0x7F) == XCB_MAPPING_NOTIFY
        && reinterpret_cast<const xcb_mapping_notify_event_t&>(event).request
        == XCB_MAPPING_POINTER;
}

} // namespace brindlex
