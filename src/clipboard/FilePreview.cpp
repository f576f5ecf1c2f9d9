#include "clipboard/FilePreview.h"

#include "foundation/Text.h"

#include <fstream>

namespace brindlex {
namespace {

/// The bytes without a character at their end that was cut off.
std::string withoutCutCharacter(std::string bytes)
{
    constexpr int mostBytesCut = 3;
    for (int cut = 0; cut <= mostBytesCut && !isWellFormed(bytes) && !bytes.empty(); ++cut)
        bytes.pop_back();
    return bytes;
}

std::string beginningOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::string bytes(longestPreviewText, '\0');
    stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    return bytes;
}

FilePreview::Any previewOfRegularFile(const std::filesystem::path& file)
{
    auto bytes = beginningOf(file);
    const bool isCut = bytes.size() == longestPreviewText;
    auto text = isCut ? withoutCutCharacter(std::move(bytes)) : std::move(bytes);
    const bool isText = !text.empty() && text.find('\0') == std::string::npos && isWellFormed(text);
    if (!isText)
        return FilePreview::Other{};
    return FilePreview::Text{std::move(text)};
}

FilePreview::Any previewOfFolder(const std::filesystem::path& folder)
{
    std::error_code problem;
    std::size_t entries = 0;
    std::filesystem::directory_iterator entry(folder, problem);
    if (problem)
        return FilePreview::Other{};
    for (; entry != std::filesystem::directory_iterator() && entries < mostPreviewEntries;
         entry.increment(problem))
        ++entries;
    return FilePreview::Folder{entries};
}

} // namespace

FilePreview::Any filePreview(const std::filesystem::path& file)
{
    std::error_code problem;
    const auto status = std::filesystem::status(file, problem);
    if (std::filesystem::is_directory(status))
        return previewOfFolder(file);
    if (std::filesystem::is_regular_file(status))
        return previewOfRegularFile(file);
    return FilePreview::Other{};
}

} // namespace brindlex
