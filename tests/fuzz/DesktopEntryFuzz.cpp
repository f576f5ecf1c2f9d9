#include "fuzz/FuzzTarget.h"

#include "foundation/Text.h"
#include "platform/linux/applications/DesktopEntry.h"

using namespace brindlex;

namespace {

/// A value as a line of an entry holds it.
std::string escaped(std::string_view value)
{
    std::string text;
    for (const char byte : value) {
        constexpr std::string_view special = " \n\t\r\\\f\v";
        constexpr std::string_view names = "sntr\\\f\v";
        const auto place = special.find(byte);
        if (place == special.npos)
            text += byte;
        else
            (text += '\\') += names[place];
    }
    return text;
}

std::string textOf(const DesktopEntry& entry)
{
    return "[Desktop Entry]\nType=Application\nName=" + escaped(entry.name) + "\nName[de]="
        + escaped(entry.localizedName) + "\nIcon=" + escaped(entry.icon) + "\nStartupWMClass="
        + escaped(entry.windowClass) + (entry.isInMenus ? "" : "\nNoDisplay=true")
        + (entry.runsInTerminal ? "\nTerminal=true" : "") + "\n[Other]\nName=none\n";
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto text = brindlex::textOf(bytes, size);
    require(programOf(text).find('/') == std::string::npos, "a program is a base name");

    const std::vector<std::string> languages{"de_AT", "de"};
    auto entry = parseDesktopEntry(text, languages);
    if (!entry)
        return 0;
    for (const auto& value :
        {entry->name, entry->localizedName, entry->icon, entry->windowClass, entry->program})
        require(isWellFormed(value), "every value is well-formed");
    require(entry->name.empty() || !entry->localizedName.empty(), "who has a name has a local one");
    entry->program.clear();
    require(parseDesktopEntry(textOf(*entry), languages) == entry, "an entry is read as written");
    return 0;
}
