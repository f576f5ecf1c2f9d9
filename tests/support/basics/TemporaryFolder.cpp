#include "support/basics/TemporaryFolder.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <utility>

namespace brindlex {

TemporaryFolder::TemporaryFolder()
{
    auto pattern = (std::filesystem::temp_directory_path() / "brindlex.XXXXXX").string();
    path_ = ::mkdtemp(pattern.data());
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string contentOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream content;
    content << stream.rdbuf();
    return std::move(content).str();
}

std::vector<std::string> namesIn(const std::filesystem::path& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
}

void write(const std::filesystem::path& file, const std::string& content)
{
    std::ofstream(file, std::ios::binary) << content;
}

} // namespace brindlex
