#include "support/windows/EventLog.h"

#include <array>
#include <utility>
#include <xcb/xinput.h>

namespace brindlex {
namespace {

constexpr std::uint32_t buttonBits = 0x1F00;

std::string modifierText(std::uint32_t state)
{
    constexpr std::array names{std::pair{XCB_MOD_MASK_SHIFT, "shift"},
        std::pair{XCB_MOD_MASK_LOCK, "lock"}, std::pair{XCB_MOD_MASK_CONTROL, "control"},
        std::pair{XCB_MOD_MASK_1, "alt"}, std::pair{XCB_MOD_MASK_2, "num"},
        std::pair{XCB_MOD_MASK_4, "super"}};
    std::string text;
    for (const auto& [bit, name] : names)
        if (state & bit)
            text += (text.empty() ? "" : " ") + std::string(name);
    return text.empty() ? "" : " (" + text + ")";
}

std::string keyLine(std::uint32_t key, bool isPress, std::uint32_t state)
{
    return "key " + std::to_string(key) + (isPress ? " down" : " up") + modifierText(state);
}

std::string buttonLine(std::uint32_t button, bool isPress, std::uint32_t state)
{
    return (isPress ? "press " : "release ") + std::to_string(button) + modifierText(state);
}

} // namespace

void EventLog::note(const xcb_generic_event_t& event)
{
    const auto type = event.response_type & 0x7F;
    switch (type) {
    case XCB_KEY_PRESS:
    case XCB_KEY_RELEASE: {
        const auto& key = reinterpret_cast<const xcb_key_press_event_t&>(event);
        lines_.push_back(keyLine(key.detail, type == XCB_KEY_PRESS, key.state));
        break;
    }
    case XCB_BUTTON_PRESS:
    case XCB_BUTTON_RELEASE: {
        const auto& button = reinterpret_cast<const xcb_button_press_event_t&>(event);
        lines_.push_back(buttonLine(button.detail, type == XCB_BUTTON_PRESS, button.state));
        break;
    }
    case XCB_MOTION_NOTIFY: {
        const auto& motion = reinterpret_cast<const xcb_motion_notify_event_t&>(event);
        ++motions_;
        if (motion.state & buttonBits)
            ++drags_;
        break;
    }
    case XCB_FOCUS_IN:
        lines_.push_back("focus in");
        break;
    case XCB_FOCUS_OUT:
        lines_.push_back("focus out");
        break;
    case XCB_ENTER_NOTIFY:
        lines_.push_back("enter");
        break;
    case XCB_LEAVE_NOTIFY:
        lines_.push_back("leave");
        break;
    case XCB_MAPPING_NOTIFY:
        ++keymaps_;
        break;
    case XCB_GE_GENERIC:
        noteInput2(event);
        break;
    default:
        break;
    }
}

void EventLog::noteInput2(const xcb_generic_event_t& event)
{
    const auto& input = reinterpret_cast<const xcb_input_button_press_event_t&>(event);
    switch (input.event_type) {
    case XCB_INPUT_KEY_PRESS:
    case XCB_INPUT_KEY_RELEASE:
        lines_.push_back(
            keyLine(input.detail, input.event_type == XCB_INPUT_KEY_PRESS, input.mods.effective));
        break;
    case XCB_INPUT_BUTTON_PRESS:
    case XCB_INPUT_BUTTON_RELEASE:
        lines_.push_back(buttonLine(
            input.detail, input.event_type == XCB_INPUT_BUTTON_PRESS, input.mods.effective));
        break;
    case XCB_INPUT_MOTION: {
        ++motions_;
        const auto* words = xcb_input_button_press_button_mask(&input);
        if (input.buttons_len > 0 && words[0] != 0)
            ++drags_;
        break;
    }
    default:
        break;
    }
}

} // namespace brindlex
