#include "platform/linux/applications/KnownApplications.h"

#include "applications/Browsers.h"
#include "foundation/Text.h"

#include <algorithm>

namespace brindlex {

std::optional<std::string_view> knownIdentifier(std::string_view name)
{
    const auto folded = lowercased(name);
    const auto isCalledSo = [&](const Browser& browser) {
        return !folded.empty() && std::ranges::count(browser.linuxNames, folded) > 0;
    };
    const auto found = std::ranges::find_if(browsers(), isCalledSo);
    if (found == browsers().end())
        return {};
    return found->bundleID;
}

} // namespace brindlex
