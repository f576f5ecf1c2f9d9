#pragma once

#include "platform/ApplicationBundles.h"
#include "platform/RunningApplications.h"

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// An application to choose.
struct ApplicationChoice {
    std::string identifier{};
    std::string name{};
    std::filesystem::path path{};
    bool isRunning = false;

    bool operator==(const ApplicationChoice&) const = default;
};

/// What is known of the use of applications.
struct ApplicationUse {
    /// By identifier, the one that was used last first.
    std::vector<std::string> recent{};
    /// The identifiers of those that run.
    std::set<std::string> running{};
};

/// The installed applications that menus show, each identifier once: those that were used of late,
/// the last one first, then the running ones and then all others by name.
std::vector<ApplicationChoice> applicationChoices(
    const std::vector<InstalledApplication>& installed, const ApplicationUse& use);

/// The path by which an application is chosen that runs: of its bundle, else the identifier that is
/// made of its windows; nothing for one that rules would not know again.
std::optional<std::filesystem::path> pathToChoose(const RunningApplication& application);

/// Those whose name has each word of the query, without regard to case and accents, in their order.
std::vector<ApplicationChoice> matchingChoices(
    const std::vector<ApplicationChoice>& choices, std::string_view query);

} // namespace brindlex
