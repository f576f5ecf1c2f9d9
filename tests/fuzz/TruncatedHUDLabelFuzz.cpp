#include "fuzz/FuzzTarget.h"

#include "foundation/Text.h"
#include "inputmethod/TruncatedHUDLabel.h"

using namespace brindlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    constexpr std::string_view dots = "...";
    const auto text = wellFormed(textOf(bytes, size));
    const auto label = truncatedHUDLabel(textOf(bytes, size));
    require(isWellFormed(label), "a label is well-formed");
    require(scalars(label).size() <= 20 + dots.size(), "no label is longer than the overlay");
    if (label == text)
        return 0;
    require(label.ends_with(dots), "what was cut says so");
    require(text.starts_with(label.substr(0, label.size() - dots.size())), "and is its beginning");
    return 0;
}
