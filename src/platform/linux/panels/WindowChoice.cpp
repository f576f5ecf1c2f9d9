#include "platform/linux/panels/WindowChoice.h"

#include <algorithm>

namespace brindlex {
namespace {

std::size_t clamped(std::ptrdiff_t row, std::size_t last)
{
    return static_cast<std::size_t>(
        std::clamp<std::ptrdiff_t>(row, 0, static_cast<std::ptrdiff_t>(last)));
}

} // namespace

WindowChoice::WindowChoice(std::size_t rows, std::size_t seen, std::size_t chosen)
    : rows_(std::max<std::size_t>(rows, 1)), seen_(std::clamp<std::size_t>(seen, 1, rows_))
{
    choose(chosen);
}

void WindowChoice::step(int rows)
{
    const auto count = static_cast<std::ptrdiff_t>(rows_);
    const auto row = (static_cast<std::ptrdiff_t>(chosen_) + rows) % count;
    choose(static_cast<std::size_t>(row < 0 ? row + count : row));
}

void WindowChoice::page(int pages)
{
    const auto distance = pages * static_cast<std::ptrdiff_t>(seen_);
    choose(clamped(static_cast<std::ptrdiff_t>(chosen_) + distance, rows_ - 1));
}

void WindowChoice::choose(std::size_t row)
{
    chosen_ = std::min(row, rows_ - 1);
    if (chosen_ < first_)
        first_ = chosen_;
    else if (chosen_ >= first_ + seen_)
        first_ = chosen_ - seen_ + 1;
}

void WindowChoice::scroll(int rows)
{
    first_ = clamped(static_cast<std::ptrdiff_t>(first_) + rows, rows_ - seen_);
}

std::size_t rowToBeginWith(std::size_t rows, bool worksInFirst)
{
    return worksInFirst && rows > 1 ? 1 : 0;
}

} // namespace brindlex
