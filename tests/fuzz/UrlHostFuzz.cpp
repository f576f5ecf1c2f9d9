#include "fuzz/FuzzTarget.h"

#include "foundation/Text.h"
#include "inputmethod/UrlHost.h"

using namespace brindlex;

namespace {

std::string escaped(std::string_view text)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string result;
    for (const char byte : text) {
        result += '%';
        result += digits[static_cast<unsigned char>(byte) >> 4];
        result += digits[static_cast<unsigned char>(byte) & 0x0F];
    }
    return result;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto text = textOf(bytes, size);
    if (const auto host = urlHost(text)) {
        require(isWellFormed(*host), "a host is well-formed");
        const auto url = "https://user:secret@" + escaped(*host) + ":443/path?query#part";
        require(urlHost(url) == host, "escapes and what surrounds a host do not change it");
    }
    const auto wanted = isWellFormed(text) ? std::optional(std::string(text)) : std::nullopt;
    require(urlHost("//" + escaped(text)) == wanted, "every well-formed text is a host in escapes");
    return 0;
}
