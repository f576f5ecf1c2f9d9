#pragma once

namespace brindlex {

/// The names by which other programs and processes know this one.
namespace programIdentity {

inline constexpr const char* bundleIdentifier = "com.brindlex.Brindlex";

/// Posted by a second launch to the first; its object is the bundle identifier.
inline constexpr const char* showMainWindow = "com.brindlex.Brindlex.showMainWindow";

} // namespace programIdentity

} // namespace brindlex
