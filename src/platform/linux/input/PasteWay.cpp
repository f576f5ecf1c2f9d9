#include "platform/linux/input/PasteWay.h"

#include "foundation/Text.h"
#include "platform/Event.h"
#include "platform/VirtualKey.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace brindlex {
namespace {

/// By the class of their windows, in small letters. Emacs pastes what was copied all the same.
constexpr std::array<std::string_view, 9> withInsert{
    "aterm", "emacs", "eterm", "gvim", "mlterm", "rxvt", "urxvt", "uxterm", "xterm"};

constexpr std::array<std::string_view, 35> terminals{"alacritty", "black-box",
    "com.raggesilver.blackbox", "cool-retro-term", "deepin-terminal", "dev.warp.warp", "foot",
    "ghostty", "com.mitchellh.ghostty", "gnome-terminal", "gnome-terminal-server", "guake", "hyper",
    "io.elementary.terminal", "kgx", "kitty", "konsole", "lxterminal", "mate-terminal",
    "org.gnome.console", "org.gnome.ptyxis", "org.kde.konsole", "org.wezfurlong.wezterm", "ptyxis",
    "qterminal", "rio", "sakura", "st-256color", "terminator", "terminology", "termite", "tilda",
    "tilix", "xfce4-terminal", "yakuake"};

template <std::size_t count>
bool isAmong(const std::array<std::string_view, count>& names, const std::string& name)
{
    return std::ranges::find(names, name) != names.end();
}

} // namespace

PasteWay pasteWayOf(const std::string& instance, const std::string& className)
{
    const auto name = lowercased(className);
    if (isAmong(withInsert, name) || isAmong(withInsert, lowercased(instance)))
        return {virtualKey::help, eventFlag::shift, name != "emacs"};
    if (isAmong(terminals, name))
        return {virtualKey::v, eventFlag::control | eventFlag::shift};
    return {virtualKey::v, eventFlag::control};
}

} // namespace brindlex
