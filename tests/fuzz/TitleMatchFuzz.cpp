#include "fuzz/FuzzTarget.h"

#include "platform/linux/accessibility/TitleMatch.h"

#include <string>

using namespace brindlex;

/// The first line of the input is the title of a window, the rest a name in the accessible tree.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto text = textOf(bytes, size);
    const auto end = std::min(text.find('\n'), text.size());
    const std::string title(text.substr(0, end));
    const auto name = text.substr(std::min(end + 1, text.size()));
    require((titleMatch(title, name) == TitleMatch::same) == (title == name),
        "what is the same is equal");
    if (title.empty())
        return 0;
    require(titleMatch(title + " - Browser", title + " - Audio playing - Browser")
            == TitleMatch::similar,
        "what a browser adds makes it similar");
    require(titleMatch(title + " - Browser", title + "s - Browser") == TitleMatch::none,
        "a longer page is another");
    return 0;
}
