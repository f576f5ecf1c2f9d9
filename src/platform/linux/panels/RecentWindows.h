#pragma once

#include <cstdint>
#include <vector>

namespace brindlex {

/// Remembers the order in which the user worked in windows, which the X server does not.
///
/// Knows the last 256 windows; nobody has to say when one has gone.
class RecentWindows {
public:
    /// The user works in this window from now on; 0 stands for none and changes nothing.
    void note(std::uint32_t window);

    /// The same windows, the last used first. Those that were never used since the program runs
    /// stand behind, in the order given.
    std::vector<std::uint32_t> ordered(std::vector<std::uint32_t> windows) const;

private:
    std::vector<std::uint32_t> lastFirst_;
};

} // namespace brindlex
