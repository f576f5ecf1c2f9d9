#include "fuzz/FuzzTarget.h"

#include "foundation/Json.h"
#include "foundation/Text.h"

using namespace brindlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto text = textOf(bytes, size);
    const auto document = parseJson(text);
    const auto sorted = parseSortedJson(text);
    require(bool(document) == bool(sorted), "both kinds of documents are read alike");
    if (!document)
        return 0;
    for (const auto& written : {jsonText(*document), prettyJsonText(*document)}) {
        require(isWellFormed(written), "a document is written as UTF-8");
        const auto again = parseJson(written);
        require(bool(again), "what was written can be read");
        require(*again == *document, "and is the same document");
    }
    return 0;
}
