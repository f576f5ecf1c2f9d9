#include "platform/linux/input/X11KeyCharacters.h"

#include "platform/linux/input/VirtualKeyCodes.h"
#include "platform/linux/x11/X11Properties.h"
#include "platform/linux/x11/XkbProtocol.h"

#include <xkbcommon/xkbcommon.h>

#include <array>
#include <sstream>

namespace brindlex {
namespace {

constexpr auto rulesProperty = "_XKB_RULES_NAMES";
constexpr std::uint32_t rulesLimit = 4'096;

/// The keymap of the rules, model, layouts, variants and options, each ended by a zero.
std::shared_ptr<xkb_keymap> keymapOf(const std::string& rules)
{
    std::array<std::string, 5> parts;
    std::istringstream text(rules);
    for (auto& part : parts)
        std::getline(text, part, '\0');
    const xkb_rule_names names{
        parts[0].c_str(), parts[1].c_str(), parts[2].c_str(), parts[3].c_str(), parts[4].c_str()};
    const std::unique_ptr<xkb_context, decltype(&xkb_context_unref)> context(
        xkb_context_new(XKB_CONTEXT_NO_FLAGS), &xkb_context_unref);
    if (!context)
        return nullptr;
    xkb_context_set_log_level(context.get(), XKB_LOG_LEVEL_CRITICAL);
    return {xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS),
        &xkb_keymap_unref};
}

bool isPrintable(const std::string& text)
{
    return text.size() > 1 || (text.size() == 1 && text[0] > ' ' && text[0] != '\x7f');
}

} // namespace

X11KeyCharacters::X11KeyCharacters(X11Connection& connection) : connection_(connection)
{
    useXkb(connection.get());
}

X11KeyCharacters::~X11KeyCharacters() = default;

std::string X11KeyCharacters::of(std::int64_t virtualKeyCode)
{
    const auto keycodes = keycodesOf(virtualKeyCode);
    auto* const map = keymap();
    if (keycodes.empty() || !map)
        return {};
    const auto layouts = xkb_keymap_num_layouts_for_key(map, keycodes.front());
    const xkb_keysym_t* symbols = nullptr;
    if (layouts == 0
        || xkb_keymap_key_get_syms_by_level(map, keycodes.front(), group() % layouts, 0, &symbols)
            != 1)
        return {};
    std::array<char, 8> written{};
    xkb_keysym_to_utf8(symbols[0], written.data(), written.size());
    const std::string text(written.data());
    return isPrintable(text) ? text : std::string();
}

xkb_keymap* X11KeyCharacters::keymap()
{
    const auto rules
        = X11PropertyRequest(connection_, connection_.root(), rulesProperty, rulesLimit)
              .bytes()
              .value_or("");
    if (rules != rules_ || !keymap_) {
        rules_ = rules;
        keymap_ = rules.empty() ? nullptr : keymapOf(rules);
    }
    return keymap_.get();
}

std::uint32_t X11KeyCharacters::group() const
{
    const X11Message<xcb_xkb_get_state_reply_t> state(xcb_xkb_get_state_reply(
        connection_.get(), xcb_xkb_get_state(connection_.get(), XCB_XKB_ID_USE_CORE_KBD), nullptr));
    return state ? state->group : 0;
}

} // namespace brindlex
