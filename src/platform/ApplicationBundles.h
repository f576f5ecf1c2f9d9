#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// What an application says about itself: an information dictionary, a desktop entry.
struct ApplicationBundle {
    std::optional<std::string> identifier{};
    std::optional<std::string> displayName{};
    std::optional<std::string> name{};
    /// The application's own icon file, if there is such a file.
    std::optional<std::filesystem::path> iconFile{};

    bool operator==(const ApplicationBundle&) const = default;
};

/// An application as lists of all of them need it.
struct InstalledApplication {
    std::string identifier{};
    /// In the user's language.
    std::string name{};
    /// What `ApplicationBundles::bundle` reads.
    std::filesystem::path path{};
    bool isInMenus = true;

    bool operator==(const InstalledApplication&) const = default;
};

/// The applications that are installed. Main thread only.
class ApplicationBundles {
public:
    virtual ~ApplicationBundles() = default;

    /// What stands at the path; nothing when it is not an application or cannot be read.
    virtual std::optional<ApplicationBundle> bundle(const std::filesystem::path& path) const = 0;

    /// All of them, in no order; several may have one identifier.
    virtual std::vector<InstalledApplication> installed() = 0;
};

} // namespace brindlex
