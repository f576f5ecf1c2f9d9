#include "platform/linux/windows/DesktopGrid.h"

namespace brindlex {
namespace {

constexpr std::uint32_t byColumns = 1;
constexpr std::uint32_t topRight = 1;
constexpr std::uint32_t bottomRight = 2;
/// More than anybody has, and few enough to be multiplied.
constexpr std::int64_t mostLines = 1000;

std::int64_t linesFor(std::int64_t count, std::int64_t perLine)
{
    return (count + perLine - 1) / perLine;
}

} // namespace

DesktopGrid::DesktopGrid(std::int64_t count, std::span<const std::uint32_t> layout)
    : count_(count), columns_(count)
{
    if (count < 1 || layout.size() < 3)
        return;
    std::int64_t columns = layout[1];
    std::int64_t rows = layout[2];
    // One of the two may be left to the number of desktops.
    if (columns == 0 && rows > 0)
        columns = linesFor(count, rows);
    else if (rows == 0 && columns > 0)
        rows = linesFor(count, columns);
    if (columns > mostLines || rows > mostLines || columns * rows < count)
        return;
    columns_ = columns;
    rows_ = rows;
    isByColumns_ = layout[0] == byColumns;
    const auto corner = layout.size() > 3 ? layout[3] : 0;
    beginsAtTheRight_ = corner == topRight || corner == bottomRight;
}

std::optional<std::uint32_t> DesktopGrid::beside(std::int64_t desktop, int distance) const
{
    if (desktop < 0 || desktop >= count_)
        return {};
    const auto column = isByColumns_ ? desktop / rows_ : desktop % columns_;
    const auto step = beginsAtTheRight_ ? -std::int64_t{distance} : std::int64_t{distance};
    if (column + step < 0 || column + step >= columns_)
        return {};
    const auto target = desktop + step * (isByColumns_ ? rows_ : 1);
    if (target >= count_)
        return {};
    return static_cast<std::uint32_t>(target);
}

} // namespace brindlex
