#include "fuzz/FuzzTarget.h"

#include "foundation/Text.h"
#include "inputmethod/NormalizedDomain.h"

using namespace brindlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const auto domain = normalizedDomain(textOf(bytes, size));
    if (!domain)
        return 0;
    require(isWellFormed(*domain), "a domain is well-formed");
    require(domain->find('.') != domain->npos, "it has two labels");
    require(!domain->starts_with('.') && !domain->ends_with('.'), "no label is empty");
    require(domain->find_first_of("/:@?# \t\n") == domain->npos, "nothing of a URL is left");
    // Of two prefixes "www." one is left, which is a label like any other.
    if (domain->starts_with("www."))
        return 0;
    require(normalizedDomain(*domain) == domain, "a domain is its own form");
    // A mark at the beginning would join the dot before it.
    if (characters("." + *domain).front() != ".")
        return 0;
    require(normalizedDomain("https://www." + *domain + ".:443/path") == domain,
        "and that of a page there");
    return 0;
}
