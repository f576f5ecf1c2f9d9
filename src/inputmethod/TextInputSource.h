#pragma once

#include <functional>
#include <string>

namespace brindlex {

/// A keyboard input source that can be selected.
struct TextInputSource {
    /// What rules store.
    std::string id{};
    std::string localizedName{};
    bool isSelectable = true;
    bool isEnabled = true;

    bool operator==(const TextInputSource&) const = default;
};

} // namespace brindlex

template <>
struct std::hash<brindlex::TextInputSource> {
    std::size_t operator()(const brindlex::TextInputSource& source) const noexcept
    {
        return std::hash<std::string>{}(source.id);
    }
};
