#pragma once

#include <filesystem>

namespace brindlex {

/// Where the build of this program stands.
std::filesystem::path buildFolder();

/// The program with all that belongs to it, installed from the build of this one.
class Installation {
public:
    /// Installs it below the prefix. A build that cannot be installed ends the process.
    explicit Installation(std::filesystem::path prefix);

    /// What users start.
    std::filesystem::path program() const { return prefix_ / "bin/brindlex"; }
    /// Where the files of the programs stand.
    std::filesystem::path programFolder() const { return prefix_ / "libexec/brindlex"; }
    std::filesystem::path dataFolder() const { return prefix_ / "share"; }
    const std::filesystem::path& prefix() const { return prefix_; }

private:
    std::filesystem::path prefix_;
};

} // namespace brindlex
