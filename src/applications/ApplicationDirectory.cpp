#include "applications/ApplicationDirectory.h"

#include "platform/ApplicationIdentifiers.h"

namespace brindlex {

std::string ApplicationDirectory::name(const std::string& identifier)
{
    if (const auto* const application = find(identifier))
        return application->name;
    return identifier.starts_with(windowClassPrefix) ? identifier.substr(windowClassPrefix.size())
                                                     : std::string();
}

std::optional<std::filesystem::path> ApplicationDirectory::path(const std::string& identifier)
{
    const auto* const application = find(identifier);
    return application ? std::optional(application->path) : std::nullopt;
}

const InstalledApplication* ApplicationDirectory::find(const std::string& identifier)
{
    auto found = applications_.find(identifier);
    const auto now = clock_.continuousTime();
    if (found == applications_.end() && (!lastRead_ || now - *lastRead_ >= betweenReads)) {
        lastRead_ = now;
        read();
        found = applications_.find(identifier);
    }
    return found == applications_.end() ? nullptr : &found->second;
}

/// Of several with one identifier, one that is in menus.
void ApplicationDirectory::read()
{
    applications_.clear();
    for (auto& application : bundles_.installed()) {
        const auto [entry, isNew] = applications_.try_emplace(application.identifier, application);
        if (!isNew && !entry->second.isInMenus && application.isInMenus)
            entry->second = application;
    }
}

} // namespace brindlex
