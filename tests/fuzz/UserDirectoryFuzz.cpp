#include "fuzz/FuzzTarget.h"

#include "platform/linux/system/XdgUserFolders.h"

using namespace brindlex;

namespace {

constexpr std::string_view key = "XDG_DOWNLOAD_DIR";

std::string quoted(const std::string& path)
{
    std::string text = "\"";
    for (const char byte : path)
        (text += '\\') += byte;
    return text + "\"";
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::filesystem::path home = "/home/somebody";
    const auto folder = userDirectory(textOf(bytes, size), key, home);
    if (!folder)
        return 0;
    require(folder->is_absolute(), "a folder is absolute");
    require(*folder != home, "and not the home folder");
    require(folder->lexically_normal() == *folder, "and in its plain form");
    // A line ends where the line does, whatever is quoted.
    if (folder->native().find('\n') != std::string::npos)
        return 0;
    const auto line = std::string(key) + "=" + quoted(folder->native()) + "\n";
    require(userDirectory(line, key, home) == folder, "a folder is read as written");
    return 0;
}
