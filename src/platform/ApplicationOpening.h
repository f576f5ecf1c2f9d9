#pragma once

#include <filesystem>

namespace brindlex {

/// Starts applications. Main thread only.
class ApplicationOpening {
public:
    virtual ~ApplicationOpening() = default;

    /// Opens the application at the path, or brings it to the front if it runs. Returns at once;
    /// what becomes of it is not reported.
    virtual void open(const std::filesystem::path& application) = 0;
};

} // namespace brindlex
