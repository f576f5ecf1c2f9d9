#include "applications/AppIdentifierLoader.h"

#include "applications/AppIconCache.h"
#include "foundation/Text.h"

namespace brindlex {
namespace {

/// A path given as a folder ends in a separator and has no file name of its own.
std::string nameOfFile(const std::filesystem::path& path)
{
    const auto named = path.has_filename() ? path : path.parent_path();
    return wellFormed(named.stem().string());
}

} // namespace

AppIdentifierLoader::AppIdentifierLoader(
    const ApplicationBundles& bundles, IconRendering& icons, AppGroupContainer& container)
    : bundles_(bundles), icons_(icons), container_(container)
{
}

Result<AppIdentifier, LoaderError> AppIdentifierLoader::load(
    const std::filesystem::path& bundlePath) const
{
    const auto bundle = bundles_.bundle(bundlePath);
    if (!bundle)
        return fail(LoaderError::unreadableBundle);
    if (!bundle->identifier)
        return fail(LoaderError::missingBundleIdentifier);
    AppIdentifier app{.bundleID = *bundle->identifier};
    if (bundle->displayName)
        app.displayName = *bundle->displayName;
    else
        app.displayName = bundle->name ? *bundle->name : nameOfFile(bundlePath);
    const auto cached
        = AppIconCache(icons_, container_).iconOf(app.bundleID, bundlePath, bundle->iconFile);
    if (const auto& icon = cached ? cached : bundle->iconFile)
        app.iconPath = icon->string();
    return app;
}

} // namespace brindlex
