#pragma once

namespace brindlex {

/// What came of a change of the dock icon.
struct DockIconPolicyResult {
    /// Whether anything had to be changed.
    bool didChange = false;
    /// What was wanted.
    bool showsDockIcon = false;

    bool operator==(const DockIconPolicyResult&) const = default;
};

} // namespace brindlex
