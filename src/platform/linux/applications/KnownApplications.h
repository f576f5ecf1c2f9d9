#pragma once

#include <optional>
#include <string_view>

namespace brindlex {

/// The identifier under which rules know an application that is the same on every system: browsers.
///
/// `name` is a desktop-file identifier as distributions, makers, Flatpak and Snap give it, or a
/// window's class; upper and lower case are the same.
std::optional<std::string_view> knownIdentifier(std::string_view name);

} // namespace brindlex
