#include "fuzz/FuzzTarget.h"

#include "foundation/Text.h"

#include <string>

using namespace brindlex;

namespace {

void checkWellForming(std::string_view text)
{
    const auto mended = wellFormed(text);
    require(isWellFormed(mended), "what was made well-formed is so");
    require(isWellFormed(text) == (mended == text), "only what is ill-formed is changed");
    require(utf8(scalars(text)) == mended, "the scalars are those of the mended text");
    require(scalars(mended) == scalars(text), "and the same before and after");
    require(isWellFormed(lowercased(text)), "lower case is well-formed");
}

void checkParts(std::string_view text)
{
    std::string joined;
    for (const auto character : characters(text)) {
        require(!character.empty(), "no character is empty");
        joined += character;
    }
    require(joined == text, "the characters make the text");

    joined.clear();
    for (const auto& piece : split(text, ','))
        joined += "," + piece;
    require(joined.substr(1) == text, "the pieces make the text");

    const auto bare = trimmed(text);
    require(text.find(bare) != text.npos, "what is left after trimming is a part");
    require(trimmed(bare) == bare, "nothing is left to trim");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    checkWellForming(textOf(bytes, size));
    checkParts(textOf(bytes, size));
    return 0;
}
