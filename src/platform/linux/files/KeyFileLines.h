#pragma once

#include <optional>
#include <string_view>

namespace brindlex {

/// A line of a text of groups and keys, and what it is in the group that was asked for.
struct KeyFileLine {
    /// With its end.
    std::string_view whole{};
    /// Whether the group begins here.
    bool isHeader = false;
    /// Both empty unless it is a key of the group.
    std::string_view key{};
    std::string_view value{};
};

/// Takes a text as desktops keep their settings in apart into its lines:
///
///     [Group]
///     key=value
///
/// Of a group that is there twice, the first counts. Text and name outlive the object.
class KeyFileLines {
public:
    KeyFileLines(std::string_view text, std::string_view group) : rest_(text), group_(group) { }

    /// The next line; nothing at the end.
    std::optional<KeyFileLine> next();

private:
    void classify(KeyFileLine& line, std::string_view content);
    bool isHeader(std::string_view content) const;

    std::string_view rest_;
    const std::string_view group_;
    bool isInside_ = false;
    bool hasBeenInside_ = false;
};

/// The value of a key in a group as it stands in the text; nothing when it is not there. Of a key
/// that is there twice, the last counts.
std::optional<std::string_view> keyFileValue(
    std::string_view text, std::string_view group, std::string_view key);

} // namespace brindlex
