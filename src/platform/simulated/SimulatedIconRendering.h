#pragma once

#include "platform/IconRendering.h"

#include <map>
#include <string>
#include <vector>

namespace brindlex {

/// The pictures of a simulated computer: texts that stand for them. Main thread only.
class SimulatedIconRendering final : public IconRendering {
public:
    std::optional<std::string> pictureInFile(const std::filesystem::path& file) override
    {
        return drawn(pictures, file);
    }

    std::optional<std::string> pictureOfApplication(const std::filesystem::path& bundle) override
    {
        return drawn(shownForApplications, bundle);
    }

    std::map<std::filesystem::path, std::string> pictures{};
    std::map<std::filesystem::path, std::string> shownForApplications{};

    /// What was drawn so far, in order.
    std::vector<std::string> drawings{};

private:
    std::optional<std::string> drawn(
        const std::map<std::filesystem::path, std::string>& from, const std::filesystem::path& path)
    {
        const auto found = from.find(path);
        if (found == from.end())
            return {};
        drawings.push_back(path.string());
        return found->second;
    }
};

} // namespace brindlex
