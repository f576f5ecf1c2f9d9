#pragma once

#include "platform/ApplicationOpening.h"

#include <vector>

namespace brindlex {

/// Notes what is opened.
class SimulatedApplicationOpening : public ApplicationOpening {
public:
    void open(const std::filesystem::path& application) override { opened.push_back(application); }

    std::vector<std::filesystem::path> opened{};
};

} // namespace brindlex
