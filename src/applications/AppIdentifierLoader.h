#pragma once

#include "applications/AppIdentifier.h"
#include "foundation/Result.h"
#include "platform/ApplicationBundles.h"

#include <filesystem>

namespace brindlex {

/// Why an application cannot be referred to.
enum class LoaderError { unreadableBundle, missingBundleIdentifier };

/// Makes references to applications from what their bundles say. Main thread only.
class AppIdentifierLoader {
public:
    explicit AppIdentifierLoader(const ApplicationBundles& bundles);

    /// The reference for the application at the path. Its name is the bundle's display name, else
    /// its name, else the file's name without the suffix; its icon is the bundle's own file.
    Result<AppIdentifier, LoaderError> load(const std::filesystem::path& bundlePath) const;

private:
    const ApplicationBundles& bundles_;
};

} // namespace brindlex
