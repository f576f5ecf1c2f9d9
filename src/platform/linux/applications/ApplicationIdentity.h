#pragma once

#include "platform/linux/applications/DesktopEntry.h"

#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// By what a window is traced to its application; empty where it is not known.
struct WindowOrigin {
    /// The two parts of WM_CLASS.
    std::string instance{};
    std::string className{};
    /// The base name of the file that its process runs.
    std::string program{};

    bool operator==(const WindowOrigin&) const = default;
};

/// The entry of the application that a window belongs to, by the first of these that finds one:
///
/// 1. StartupWMClass is the window's instance or class,
/// 2. the same without regard to case,
/// 3. the identifier, or what follows its last dot, is the instance or class, without regard to
///    case,
/// 4. the entry alone starts the program that the window's process runs, or one named as the
///    instance; neither an interpreter nor one in a terminal.
///
/// Within a step the instance counts before the class, as windows of web applications share the
/// class of their browser, and entries in the menus before others.
const DesktopEntry* entryOf(const WindowOrigin& origin, const std::vector<DesktopEntry>& entries);

/// The identifier that rules store for the entry's application.
std::string identifierOf(const DesktopEntry& entry);

/// The identifier of a window without an entry: "wmclass:" and its class, else "exe:" and its
/// program, else nothing. A known browser keeps its identifier.
std::optional<std::string> identifierWithoutEntry(const WindowOrigin& origin);

} // namespace brindlex
