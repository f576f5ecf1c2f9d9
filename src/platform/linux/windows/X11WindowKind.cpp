#include "platform/linux/windows/X11WindowKind.h"

#include <algorithm>
#include <array>

namespace brindlex {
namespace {

using Name = std::pair<std::string_view, bool X11WindowKind::*>;

constexpr std::array typeNames{
    Name{"_NET_WM_WINDOW_TYPE_DESKTOP", &X11WindowKind::isDesktop},
    Name{"_NET_WM_WINDOW_TYPE_DOCK", &X11WindowKind::isFurniture},
    Name{"_NET_WM_WINDOW_TYPE_MENU", &X11WindowKind::isFurniture},
    Name{"_NET_WM_WINDOW_TYPE_POPUP_MENU", &X11WindowKind::isFurniture},
    Name{"_NET_WM_WINDOW_TYPE_DROPDOWN_MENU", &X11WindowKind::isFurniture},
    Name{"_NET_WM_WINDOW_TYPE_TOOLTIP", &X11WindowKind::isFurniture},
    Name{"_NET_WM_WINDOW_TYPE_NOTIFICATION", &X11WindowKind::isFurniture},
    Name{"_NET_WM_WINDOW_TYPE_SPLASH", &X11WindowKind::isFurniture},
};

constexpr std::array stateNames{
    Name{"_NET_WM_STATE_HIDDEN", &X11WindowKind::isHidden},
    Name{"_NET_WM_STATE_ABOVE", &X11WindowKind::isAbove},
    Name{"_NET_WM_STATE_SKIP_TASKBAR", &X11WindowKind::skipsTaskbar},
};

} // namespace

X11WindowKinds::X11WindowKinds(const std::function<std::uint32_t(std::string_view)>& atomOf)
{
    for (const auto& [name, meaning] : typeNames)
        types_.emplace_back(atomOf(name), meaning);
    for (const auto& [name, meaning] : stateNames)
        states_.emplace_back(atomOf(name), meaning);
}

X11WindowKind X11WindowKinds::kindOf(
    std::span<const std::uint32_t> types, std::span<const std::uint32_t> states) const
{
    X11WindowKind kind;
    apply(types_, types, kind);
    apply(states_, states, kind);
    return kind;
}

void X11WindowKinds::apply(
    const Meanings& meanings, std::span<const std::uint32_t> atoms, X11WindowKind& kind)
{
    for (const auto& [atom, meaning] : meanings)
        if (std::ranges::find(atoms, atom) != atoms.end())
            kind.*meaning = true;
}

X11WindowKindRequest::X11WindowKindRequest(X11Connection& connection, xcb_window_t window)
    : types_(connection, window, "_NET_WM_WINDOW_TYPE", someAtoms),
      states_(connection, window, "_NET_WM_STATE", someAtoms)
{
}

X11WindowKind X11WindowKindRequest::kind(const X11WindowKinds& kinds)
{
    const auto types = types_.values().value_or(std::vector<std::uint32_t>{});
    const auto states = states_.values().value_or(std::vector<std::uint32_t>{});
    return kinds.kindOf(types, states);
}

} // namespace brindlex
