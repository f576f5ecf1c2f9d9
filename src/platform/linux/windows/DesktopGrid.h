#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace brindlex {

/// How the virtual desktops lie side by side.
///
/// One row of all of them, unless a pager has laid out a grid (`_NET_DESKTOP_LAYOUT` of EWMH).
class DesktopGrid {
public:
    /// `layout` has the values of the property: the orientation, the columns, the rows, and the
    /// corner of the first desktop. Anything else than a grid that can hold all desktops is one
    /// row.
    DesktopGrid(std::int64_t count, std::span<const std::uint32_t> layout);

    /// The desktop so many places to the right, or to the left where `distance` is negative, in the
    /// same row; nothing beyond its ends.
    std::optional<std::uint32_t> beside(std::int64_t desktop, int distance) const;

private:
    std::int64_t count_;
    std::int64_t columns_;
    std::int64_t rows_ = 1;
    bool isByColumns_ = false;
    bool beginsAtTheRight_ = false;
};

} // namespace brindlex
