#include "fuzz/FuzzTarget.h"

#include "clipboard/ClipboardItemDescription.h"
#include "foundation/Text.h"

#include <cstdio>

using namespace brindlex;

namespace {

std::string digitsOf(const ClipboardColour& colour)
{
    char text[10];
    std::snprintf(text, sizeof text, "#%02x%02x%02x%02x", unsigned{colour.red},
        unsigned{colour.green}, unsigned{colour.blue}, unsigned{colour.alpha});
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    ClipboardItem item;
    item.text = std::string(textOf(bytes, size));
    const auto description
        = std::get<ClipboardItemDescription::Text>(clipboardItemDescription(item));
    const auto& line = description.line;
    require(isWellFormed(line), "a line is well-formed");
    require(characters(line).size() <= longestClipboardLine, "a line is bounded");
    require(trimmed(line) == line && line.find('\n') == std::string::npos, "a line is one line");
    if (description.colour)
        require(clipboardColour(digitsOf(*description.colour)) == description.colour,
            "a colour is the one of its digits");
    return 0;
}
