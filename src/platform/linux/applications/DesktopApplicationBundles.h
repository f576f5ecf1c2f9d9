#pragma once

#include "platform/ApplicationBundles.h"
#include "platform/linux/applications/DesktopEntries.h"

namespace brindlex {

/// The applications that are installed, as their desktop entries say: a bundle's path is that of
/// the entry. One that has none stands for itself, by the identifier that is made of its windows.
class DesktopApplicationBundles final : public ApplicationBundles {
public:
    explicit DesktopApplicationBundles(DesktopEntries& entries);

    std::optional<ApplicationBundle> bundle(const std::filesystem::path& path) const override;
    std::vector<InstalledApplication> installed() override;

private:
    DesktopEntries& entries_;
};

} // namespace brindlex
