#include "fuzz/FuzzTarget.h"

#include "foundation/Text.h"
#include "platform/linux/preferences/PreferenceDocument.h"

using namespace brindlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto document = parsePreferences(textOf(bytes, size));
    if (!document)
        return 0;
    const auto written = preferencesText(*document);
    require(isWellFormed(written), "preferences are written as UTF-8");
    const auto again = parsePreferences(written);
    require(bool(again), "what was written can be read");
    require(isSameDocument(*again, *document), "and is the same");
    require(preferencesText(*again) == written, "also to the letter");

    std::set<std::string> keys;
    for (const auto& [key, preference] : *document)
        keys.insert(key);
    require(isSameDocument(merged({}, *document, keys), *document), "all changes are merged");
    require(merged(*document, {}, keys).empty(), "and all removals");
    require(
        isSameDocument(merged(*document, {}, {}), *document), "and nothing that did not change");
    return 0;
}
