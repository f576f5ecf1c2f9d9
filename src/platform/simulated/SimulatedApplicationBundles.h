#pragma once

#include "platform/ApplicationBundles.h"

#include <filesystem>
#include <map>
#include <optional>

namespace brindlex {

/// The applications installed on a simulated computer. Main thread only.
class SimulatedApplicationBundles final : public ApplicationBundles {
public:
    std::optional<ApplicationBundle> bundle(const std::filesystem::path& path) const override
    {
        const auto found = bundles_.find(path);
        if (found == bundles_.end())
            return {};
        return found->second;
    }

    std::vector<InstalledApplication> installed() override
    {
        std::vector<InstalledApplication> all;
        for (const auto& [path, bundle] : bundles_)
            all.push_back({bundle.identifier.value_or(path.stem().string()),
                bundle.displayName.value_or(bundle.name.value_or("")), path});
        return all;
    }

    /// Puts an application there, in place of what was there.
    void install(const std::filesystem::path& path, const ApplicationBundle& bundle)
    {
        bundles_.insert_or_assign(path, bundle);
    }

    void remove(const std::filesystem::path& path) { bundles_.erase(path); }

private:
    std::map<std::filesystem::path, ApplicationBundle> bundles_;
};

} // namespace brindlex
