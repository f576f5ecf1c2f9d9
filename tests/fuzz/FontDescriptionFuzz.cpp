#include "fuzz/FuzzTarget.h"

#include "foundation/Text.h"
#include "platform/linux/appearance/FontDescription.h"

using namespace brindlex;

namespace {

void requireUsable(const std::optional<DesktopFont>& font)
{
    if (!font)
        return;
    require(isWellFormed(font->family), "a family is well-formed");
    require(
        font->points == 0 || (font->points >= leastFontPoints && font->points <= mostFontPoints),
        "a size is one that windows are made for");
    require(font->weight >= 100 && font->weight <= 900, "a weight is one that fonts have");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto text = textOf(bytes, size);
    requireUsable(pangoFont(text));
    requireUsable(qtFont(text));
    return 0;
}
