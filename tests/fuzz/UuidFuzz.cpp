#include "fuzz/FuzzTarget.h"

#include "foundation/Text.h"
#include "foundation/Uuid.h"

#include <algorithm>

using namespace brindlex;

/// The input is read as a text and, as far as it is long enough, as the bytes of an identifier.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto text = textOf(bytes, size);
    if (const auto uuid = Uuid::fromText(text))
        require(lowercased(uuid->text()) == lowercased(text), "only the case of a text changes");

    Uuid any;
    if (size < any.bytes.size())
        return 0;
    std::copy_n(bytes, any.bytes.size(), any.bytes.begin());
    require(Uuid::fromText(any.text()) == any, "what is written of any bytes is read as them");
    return 0;
}
