#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace brindlex {

/// A real folder that goes away with the test.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

/// The whole content of a file; empty when there is none.
std::string contentOf(const std::filesystem::path& file);

/// The names of all that is in a folder, in order.
std::vector<std::string> namesIn(const std::filesystem::path& folder);

/// Makes the file have exactly this content.
void write(const std::filesystem::path& file, const std::string& content);

} // namespace brindlex
