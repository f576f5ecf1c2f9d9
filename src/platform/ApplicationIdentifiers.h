#pragma once

#include <string_view>

namespace brindlex {

/// The identifiers of applications that are not installed as such are made of what their windows
/// say of themselves: their class, else the program that they belong to, behind one of these.
inline constexpr std::string_view windowClassPrefix = "wmclass:";
inline constexpr std::string_view programPrefix = "exe:";

constexpr bool isMadeOfWindow(std::string_view identifier)
{
    return identifier.starts_with(windowClassPrefix) || identifier.starts_with(programPrefix);
}

} // namespace brindlex
