#include "architecture/Sources.h"

#include <algorithm>
#include <fstream>
#include <regex>

namespace brindlex {

std::vector<std::filesystem::path> sourceFiles(const std::filesystem::path& root)
{
    std::vector<std::filesystem::path> files;
    for (const auto& item : std::filesystem::recursive_directory_iterator(root)) {
        const auto extension = item.path().extension();
        if (item.is_regular_file() && (extension == ".h" || extension == ".cpp"))
            files.push_back(item.path().lexically_relative(root));
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::vector<Include> includesBelow(const std::filesystem::path& root)
{
    const std::regex form(R"re(^\s*#\s*(?:include|import)\s+(["<])([^">]+)[">])re");
    std::vector<Include> includes;
    for (const auto& file : sourceFiles(root)) {
        std::ifstream stream(root / file);
        std::smatch found;
        int number = 0;
        for (std::string line; std::getline(stream, line);) {
            ++number;
            const bool isInclude = std::regex_search(line, found, form);
            // What Qt's compiler of meta objects makes is no header of ours.
            if (isInclude && !found[2].str().ends_with(".moc"))
                includes.push_back({file, found[2], number, found[1] == "\""});
        }
    }
    return includes;
}

} // namespace brindlex
