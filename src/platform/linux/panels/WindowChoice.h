#pragma once

#include <cstddef>

namespace brindlex {

/// Which row of a list is chosen and which rows of it are seen.
///
/// The chosen row is seen after every step; scrolling alone may leave it behind. There is at least
/// one row, and at least one is seen.
class WindowChoice {
public:
    /// Of so many rows so many are seen at a time.
    WindowChoice(std::size_t rows, std::size_t seen, std::size_t chosen);

    std::size_t rows() const { return rows_; }
    std::size_t chosen() const { return chosen_; }
    /// The first row that is seen, and how many are.
    std::size_t first() const { return first_; }
    std::size_t seen() const { return seen_; }

    /// So many rows on, around the ends.
    void step(int rows);
    /// As many rows on as are seen at a time, to the ends at most.
    void page(int pages);
    void toFirst() { choose(0); }
    void toLast() { choose(rows_ - 1); }
    void choose(std::size_t row);

    /// Moves what is seen by so many rows, to the ends at most.
    void scroll(int rows);

private:
    std::size_t rows_;
    std::size_t seen_;
    std::size_t chosen_ = 0;
    std::size_t first_ = 0;
};

/// The row that a list of windows, the last used first, begins with: the one before the window
/// that the user works in, or the last used one when the user works in none of them.
std::size_t rowToBeginWith(std::size_t rows, bool worksInFirst);

} // namespace brindlex
