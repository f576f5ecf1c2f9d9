#pragma once

#include <cstdint>
#include <string>

namespace brindlex {

/// The keystroke by which an application pastes.
struct PasteWay {
    std::int64_t keyCode = 0;
    /// As in events.
    std::uint64_t flags = 0;
    /// Whether it pastes what is selected with the mouse, and not what was copied.
    bool isOfMouseSelection = false;

    bool operator==(const PasteWay&) const = default;
};

/// That of the application whose window says this of itself in WM_CLASS: Control+V, in terminals
/// with Shift; Shift+Insert in those where both type something else.
PasteWay pasteWayOf(const std::string& instance, const std::string& className);

} // namespace brindlex
