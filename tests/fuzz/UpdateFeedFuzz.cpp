#include "fuzz/FuzzTarget.h"

#include "shell/UpdateFeed.h"

using namespace brindlex;

/// The input is read as a feed, and as a version.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto text = textOf(bytes, size);
    if (const auto version = SemanticVersion::fromText(text)) {
        require(version->text() == text, "a version is written as read");
        require(!precedes(*version, *version), "and does not precede itself");
    }
    const auto feed = decodeUpdateFeed(text);
    if (!feed)
        return 0;
    require(decodeUpdateFeed(encodeUpdateFeed(*feed)) == feed, "a feed is read as written");
    require(feed->address.find_first_of(" \n\"<>\\") == std::string::npos, "its address is one");
    return 0;
}
