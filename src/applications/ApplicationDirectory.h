#pragma once

#include "platform/ApplicationBundles.h"
#include "platform/Clock.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace brindlex {

/// The installed applications by their identifiers. They are read with the first question, and once
/// more when one is unknown, but not within ten seconds of the last time. Main thread only.
class ApplicationDirectory {
public:
    ApplicationDirectory(ApplicationBundles& bundles, const Clock& clock)
        : bundles_(bundles), clock_(clock)
    {
    }

    /// What users call the application: its name in their language, else the class of its windows
    /// where the identifier is made of that; empty when nobody knows it.
    std::string name(const std::string& identifier);

    /// Where its bundle is.
    std::optional<std::filesystem::path> path(const std::string& identifier);

private:
    const InstalledApplication* find(const std::string& identifier);
    void read();

    static constexpr Seconds betweenReads = 10;

    ApplicationBundles& bundles_;
    const Clock& clock_;
    std::map<std::string, InstalledApplication> applications_;
    std::optional<Seconds> lastRead_;
};

} // namespace brindlex
