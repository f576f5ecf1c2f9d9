#pragma once

#include <array>
#include <string>
#include <string_view>

namespace brindlex {

/// A window that the program can have.
struct WindowScene {
    std::string_view id{};
    /// The size in which it opens first, in points.
    int width = 0;
    int height = 0;

    bool operator==(const WindowScene&) const = default;
};

namespace windowScene {

inline constexpr WindowScene main{"main", 650, 540};
inline constexpr WindowScene logs{"logs", 820, 520};
inline constexpr WindowScene permissions{"permissions", 760, 560};
/// With what is new; without it the window is as high as its words need.
inline constexpr WindowScene update{"update", 480, 420};

} // namespace windowScene

/// All of them, in their order.
inline constexpr std::array windowScenes{
    windowScene::main, windowScene::logs, windowScene::permissions, windowScene::update};

/// The name under which the desktop knows the window of a scene. The auxiliary windows, all but the
/// main one, share a prefix.
std::string windowIdentifier(std::string_view scene);

/// Whether it is the scene of an auxiliary window.
bool isAuxiliaryScene(std::string_view scene);

} // namespace brindlex
