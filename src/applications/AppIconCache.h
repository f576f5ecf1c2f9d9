#pragma once

#include "platform/AppGroupContainer.h"
#include "platform/IconRendering.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

/// The name, without suffix, of the file with an application's icon: the bundle identifier with "_"
/// in place of each scalar that is no letter, mark or number of any script, ".", "-" or "_". A
/// fresh UUID for an empty one.
std::string appIconFileName(std::string_view bundleID);

/// Icons of applications as PNG files in the folder "Config/AppIcons" of the container, where the
/// file-manager extension may read them.
///
/// A file is kept as long as neither the picture nor the bundle has changed since it was made.
/// Waits for the disk when a picture is drawn. Main thread only.
class AppIconCache {
public:
    AppIconCache(IconRendering& icons, AppGroupContainer& container);

    /// The file with the icon of the application: of its own icon file, or where that has no
    /// picture, of what the desktop shows for it. Nothing when none can be made.
    std::optional<std::filesystem::path> iconOf(std::string_view bundleID,
        const std::filesystem::path& bundle, const std::optional<std::filesystem::path>& iconFile);

private:
    IconRendering& icons_;
    AppGroupContainer& container_;
};

} // namespace brindlex
