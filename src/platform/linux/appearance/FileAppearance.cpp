#include "platform/linux/appearance/FileAppearance.h"

namespace brindlex {
namespace {

constexpr std::size_t mostBytes = 1U << 18;

} // namespace

FileAppearance::FileAppearance(const std::filesystem::path& file, Reading reading)
    : file_(file, mostBytes,
        [this, reading](const std::string& content) { current_.set(reading(content)); })
{
}

} // namespace brindlex
