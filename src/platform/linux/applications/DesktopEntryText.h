#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// The keys of the group "Desktop Entry" of a text (Desktop Entry Specification 1.5), which
/// outlives the object. Of a key that is there twice, the first counts.
class DesktopEntryKeys {
public:
    explicit DesktopEntryKeys(std::string_view text);

    /// Whether the text has the group.
    bool hasGroup() const { return hasGroup_; }
    bool contains(std::string_view key) const { return keys_.contains(key); }

    /// The value without its escapes; empty when there is none. Bytes that are not UTF-8 become
    /// U+FFFD.
    std::string value(std::string_view key) const;

    /// The values of a list.
    std::vector<std::string> list(std::string_view key) const;

private:
    std::map<std::string_view, std::string_view> keys_;
    bool hasGroup_ = false;
};

/// The text with the key in its group set to the value, or without the key; all else stays to the
/// letter. A text without the group stays as it is.
std::string withDesktopEntryKey(
    std::string_view text, std::string_view key, const std::optional<std::string>& value);

/// The words of a command line in the quoting of the key Exec.
std::vector<std::string> execWords(std::string_view exec);

/// The word in the quoting of the key Exec.
std::string quotedForExec(std::string_view word);

} // namespace brindlex
