#pragma once

#include "platform/AppGroupContainer.h"
#include "platform/simulated/SimulatedJournal.h"

#include <mutex>

namespace brindlex {

/// A container in a folder of the test's choice, or none.
class SimulatedAppGroupContainer : public AppGroupContainer {
public:
    explicit SimulatedAppGroupContainer(
        std::optional<std::filesystem::path> folder = {}, SimulatedJournal::Writer journal = {});

    std::optional<std::filesystem::path> appGroupContainerURL() override;

    /// Lets the container appear, move or go.
    void setFolder(std::optional<std::filesystem::path> folder);

private:
    SimulatedJournal::Writer journal_;
    std::mutex mutex_;
    std::optional<std::filesystem::path> folder_;
};

} // namespace brindlex
