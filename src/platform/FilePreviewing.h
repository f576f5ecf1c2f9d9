#pragma once

#include <filesystem>
#include <vector>

namespace brindlex {

/// Shows what is in files without opening an application for them. Main thread only.
class FilePreviewing {
public:
    virtual ~FilePreviewing() = default;

    /// Shows the files, beginning with the first, over all windows and in place of what is shown.
    /// It stays until it is closed by the program, and what keys the user presses and releases
    /// meanwhile reaches the program's window that had them before.
    virtual void show(const std::vector<std::filesystem::path>& files) = 0;

    /// Takes away what is shown, if anything is.
    virtual void close() = 0;
};

} // namespace brindlex
