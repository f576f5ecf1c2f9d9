#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace brindlex {

/// A literal as an argument of a template.
template <std::size_t size>
struct FixedText {
    char characters[size]{};

    consteval FixedText(const char (&literal)[size]) { std::copy_n(literal, size, characters); }

    constexpr operator std::string_view() const { return {characters, size - 1}; }
};

} // namespace brindlex
