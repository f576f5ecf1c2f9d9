#pragma once

#include "foundation/JsonForm.h"

#include <optional>
#include <string>

namespace brindlex {

/// A reference to an application, as rules and configurations keep it.
struct AppIdentifier {
    /// The only field that the matching of rules looks at.
    std::string bundleID{};
    std::string displayName{};
    /// The path of an icon file; absent when there is none.
    std::optional<std::string> iconPath{};

    bool operator==(const AppIdentifier&) const = default;

    static constexpr auto jsonForm()
    {
        return std::tuple{
            required("bundleID", &AppIdentifier::bundleID),
            required("displayName", &AppIdentifier::displayName),
            omittedWhenAbsent("iconPath", &AppIdentifier::iconPath),
        };
    }
};

} // namespace brindlex
