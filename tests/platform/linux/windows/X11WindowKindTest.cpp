#include "platform/linux/windows/X11WindowKind.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace brindlex {
namespace {

using Atoms = std::vector<std::uint32_t>;

constexpr std::array<std::string_view, 15> typeNames{"DESKTOP", "DOCK", "TOOLBAR", "MENU",
    "UTILITY", "SPLASH", "DIALOG", "DROPDOWN_MENU", "POPUP_MENU", "TOOLTIP", "NOTIFICATION",
    "COMBO", "DND", "NORMAL", "OF_NO_RULE"};
constexpr std::array<std::string_view, 14> stateNames{"MODAL", "STICKY", "MAXIMIZED_VERT",
    "MAXIMIZED_HORZ", "SHADED", "SKIP_TASKBAR", "SKIP_PAGER", "HIDDEN", "FULLSCREEN", "ABOVE",
    "BELOW", "DEMANDS_ATTENTION", "FOCUSED", "OF_NO_RULE"};

/// The numbers of the names here: 101 and up for types, 201 and up for states.
std::uint32_t atomOf(std::string_view name)
{
    const auto numberIn = [&](const auto& names, std::string_view prefix, std::uint32_t first) {
        if (!name.starts_with(prefix))
            return std::uint32_t{0};
        const auto place = std::ranges::find(names, name.substr(prefix.size()));
        return place == names.end() ? 0 : first + static_cast<std::uint32_t>(place - names.begin());
    };
    return std::max(numberIn(typeNames, "_NET_WM_WINDOW_TYPE_", 101),
        numberIn(stateNames, "_NET_WM_STATE_", 201));
}

std::uint32_t type(std::string_view name)
{
    return atomOf("_NET_WM_WINDOW_TYPE_" + std::string(name));
}

std::uint32_t state(std::string_view name) { return atomOf("_NET_WM_STATE_" + std::string(name)); }

X11WindowKind kindOf(const Atoms& types, const Atoms& states)
{
    return X11WindowKinds(atomOf).kindOf(types, states);
}

TEST(X11WindowKind, isNothingInParticularForAWindowThatSaysNothing)
{
    EXPECT_EQ(kindOf({}, {}), X11WindowKind{});
}

TEST(X11WindowKind, isFurnitureByEachOfItsTypes)
{
    const std::vector<std::string_view> furniture{
        "DOCK", "MENU", "SPLASH", "DROPDOWN_MENU", "POPUP_MENU", "TOOLTIP", "NOTIFICATION"};
    for (const auto name : typeNames) {
        const X11WindowKind expected{.isDesktop = name == "DESKTOP",
            .isFurniture = std::ranges::find(furniture, name) != furniture.end()};
        EXPECT_EQ(kindOf({type(name)}, {}), expected) << name;
    }
}

TEST(X11WindowKind, isHiddenAboveOrOffTheTaskbarByItsStates)
{
    for (const auto name : stateNames) {
        const X11WindowKind expected{.isHidden = name == "HIDDEN",
            .isAbove = name == "ABOVE",
            .skipsTaskbar = name == "SKIP_TASKBAR"};
        EXPECT_EQ(kindOf({}, {state(name)}), expected) << name;
    }
}

TEST(X11WindowKind, countsEachOfSeveral)
{
    Atoms types;
    for (const auto name : typeNames)
        types.push_back(type(name));
    Atoms states;
    for (const auto name : stateNames)
        states.push_back(state(name));

    EXPECT_EQ(kindOf(types, states), (X11WindowKind{true, true, true, true, true}));
    EXPECT_EQ(
        kindOf({type("NORMAL"), type("DOCK"), type("DOCK")}, {state("STICKY"), state("ABOVE")}),
        (X11WindowKind{.isFurniture = true, .isAbove = true}));
}

TEST(X11WindowKind, takesNoStateForATypeAndNoTypeForAState)
{
    EXPECT_EQ(kindOf({state("HIDDEN")}, {type("DESKTOP")}), X11WindowKind{});
}

TEST(X11WindowKind, isNothingInParticularByNumbersThatNameNothing)
{
    const Atoms nonsense{0, 1, 100, 999, 0xFFFFFFFF};
    EXPECT_EQ(kindOf(nonsense, nonsense), X11WindowKind{});
}

} // namespace
} // namespace brindlex
