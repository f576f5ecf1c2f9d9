#include "platform/linux/input/X11LentButtons.h"

#include <algorithm>
#include <xcb/xinput.h>

namespace brindlex {
namespace {

/// The wheel and the buttons that everybody has are never lent.
constexpr std::uint8_t firstSideButton = 8;

} // namespace

void X11LentButtons::setPointer(std::uint16_t pointer)
{
    pointer_ = pointer;
    const auto found = places();
    learnOwn(found);
    // To set them notifies all programs.
    if (own_ != found)
        setPlaces();
}

std::optional<std::uint8_t> X11LentButtons::standIn(
    std::uint8_t button, const std::function<bool(std::uint8_t)>& isDown)
{
    if (const auto found = lent_.find(button); found != lent_.end())
        return found->second;
    if (button <= count_)
        return isLent(button) ? std::nullopt : std::optional(button);
    if (lent_.empty())
        learnOwn(places());
    for (auto place = static_cast<std::uint8_t>(own_.size()); place >= firstSideButton; --place) {
        if (isLent(place) || isDown(place))
            continue;
        lent_.emplace(button, place);
        setPlaces();
        return place;
    }
    return {};
}

void X11LentButtons::giveBack(std::uint8_t button)
{
    if (lent_.erase(button) > 0)
        setPlaces();
}

std::vector<std::uint8_t> X11LentButtons::places()
{
    const X11Message<xcb_input_get_device_button_mapping_reply_t> reply(
        xcb_input_get_device_button_mapping_reply(connection_.get(),
            xcb_input_get_device_button_mapping(
                connection_.get(), static_cast<std::uint8_t>(pointer_)),
            nullptr));
    if (!reply)
        return {};
    const auto* const first = xcb_input_get_device_button_mapping_map(reply.get());
    return {first, first + reply->map_size};
}

void X11LentButtons::learnOwn(const std::vector<std::uint8_t>& places)
{
    own_ = places;
    // The user may have let them change places, but with no others.
    for (std::size_t index = 0; index < own_.size(); ++index)
        if (own_[index] > own_.size())
            own_[index] = static_cast<std::uint8_t>(index + 1);
    if (!own_.empty())
        count_ = static_cast<std::uint8_t>(own_.size());
}

void X11LentButtons::setPlaces()
{
    if (own_.empty())
        return;
    auto places = own_;
    for (const auto& [button, place] : lent_)
        places[place - 1U] = button;
    const auto request = xcb_input_set_device_button_mapping(connection_.get(),
        static_cast<std::uint8_t>(pointer_), static_cast<std::uint8_t>(places.size()),
        places.data());
    xcb_discard_reply(connection_.get(), request.sequence);
}

bool X11LentButtons::isLent(std::uint8_t place) const
{
    return std::ranges::any_of(lent_, [&](const auto& loan) { return loan.second == place; });
}

} // namespace brindlex
