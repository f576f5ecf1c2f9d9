#pragma once

#include "applications/AppIdentifier.h"
#include "foundation/Result.h"
#include "platform/AppGroupContainer.h"
#include "platform/ApplicationBundles.h"
#include "platform/IconRendering.h"

#include <filesystem>
#include <string_view>

namespace brindlex {

/// Why an application cannot be referred to.
enum class LoaderError { unreadableBundle, missingBundleIdentifier };

constexpr std::string_view logLabel(LoaderError error)
{
    return error == LoaderError::unreadableBundle ? "unreadableBundle" : "missingBundleIdentifier";
}

/// Makes references to applications from what their bundles say, and keeps their icons where the
/// file-manager extension may read them. Main thread only.
class AppIdentifierLoader {
public:
    AppIdentifierLoader(
        const ApplicationBundles& bundles, IconRendering& icons, AppGroupContainer& container);

    /// The reference for the application at the path. Its name is the bundle's display name, else
    /// its name, else the file's name without the suffix; its icon is the file that `AppIconCache`
    /// makes, else the bundle's own, if it has one.
    Result<AppIdentifier, LoaderError> load(const std::filesystem::path& bundlePath) const;

private:
    const ApplicationBundles& bundles_;
    IconRendering& icons_;
    AppGroupContainer& container_;
};

} // namespace brindlex
