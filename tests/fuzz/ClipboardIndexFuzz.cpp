#include "fuzz/FuzzTarget.h"

#include "clipboard/ClipboardBlobs.h"
#include "clipboard/ClipboardIndex.h"

using namespace brindlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto items = clipboardItemsOf(textOf(bytes, size));
    if (!items)
        return 0;
    for (const auto& item : *items)
        require(!item->imageBlobName || isBlobName(*item->imageBlobName), "a blob has its folder");
    const auto text = clipboardIndexText(*items);
    require(static_cast<bool>(text), "what was read can be written");
    const auto again = clipboardItemsOf(*text);
    require(again && again->size() == items->size(), "and read again");
    for (std::size_t index = 0; index < items->size(); ++index)
        require(*(*again)[index] == *(*items)[index], "and is the same");
    return 0;
}
