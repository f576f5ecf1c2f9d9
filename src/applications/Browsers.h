#pragma once

#include <array>
#include <span>
#include <string_view>

namespace brindlex {

/// The family of a browser decides what it calls its current tab when a system asks by script.
enum class BrowserKind { safari, chromium, unscripted };

/// An application that shows websites.
struct Browser {
    /// The identifier under which rules know it on every system.
    std::string_view bundleID{};
    BrowserKind kind{};
    /// Its desktop-file identifiers as distributions, makers, Flatpak and Snap give them, and the
    /// classes of its windows, in lower case; empty after the last.
    std::array<std::string_view, 5> linuxNames{};
};

/// All browsers whose websites rules can name: one row makes one known to the rules and to the
/// identity of applications.
std::span<const Browser> browsers();

} // namespace brindlex
