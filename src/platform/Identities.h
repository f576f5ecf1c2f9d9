#pragma once

#include <cstdint>

namespace brindlex {

/// A window of any program: equal to itself and to no other. Only the provider that names it may
/// look into the value.
enum class WindowIdentity : std::uint64_t { none = 0 };

/// A process of the user's session, in the same way; `none` where it is not known.
enum class ProcessIdentity : std::int64_t { none = 0 };

} // namespace brindlex
