#pragma once

#include "platform/FilePreviewing.h"

#include <filesystem>
#include <vector>

namespace brindlex {

/// A preview in memory.
class SimulatedFilePreviewing final : public FilePreviewing {
public:
    using Files = std::vector<std::filesystem::path>;

    void show(const Files& files) override
    {
        shown = files;
        ++timesShown;
    }
    void close() override { shown.clear(); }

    /// What is shown; none when nothing is.
    Files shown{};
    int timesShown = 0;
};

} // namespace brindlex
