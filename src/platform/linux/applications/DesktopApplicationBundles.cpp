#include "platform/linux/applications/DesktopApplicationBundles.h"

#include "foundation/Text.h"
#include "platform/ApplicationIdentifiers.h"
#include "platform/linux/applications/ApplicationIdentity.h"
#include "platform/linux/applications/DesktopIcons.h"

namespace brindlex {

DesktopApplicationBundles::DesktopApplicationBundles(DesktopEntries& entries)
    : entries_(entries) { }

std::optional<ApplicationBundle> DesktopApplicationBundles::bundle(
    const std::filesystem::path& path) const
{
    if (isMadeOfWindow(path.native()))
        return ApplicationBundle{
            .identifier = path.native(), .name = path.native().substr(path.native().find(':') + 1)};
    if (!path.native().ends_with(".desktop"))
        return {};
    const auto entry = entries_.read(path);
    if (!entry)
        return {};
    const bool hasIdentifier = path.filename() != ".desktop";
    return ApplicationBundle{
        .identifier = hasIdentifier ? unlessEmpty(identifierOf(*entry)) : std::nullopt,
        .displayName = unlessEmpty(entry->localizedName),
        .name = unlessEmpty(entry->name),
        .iconFile = iconFile(entry->icon, entries_.dataFolders()),
    };
}

std::vector<InstalledApplication> DesktopApplicationBundles::installed()
{
    entries_.refresh();
    std::vector<InstalledApplication> all;
    for (const auto& entry : entries_.all())
        all.push_back({identifierOf(entry), entry.localizedName, entry.path, entry.isInMenus});
    return all;
}

} // namespace brindlex
