#pragma once

#include "platform/BrowserPageReading.h"

#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

/// Which browsers can be asked for their page, and what page they show. Main thread only.
class BrowserURLProvider {
public:
    BrowserURLProvider() = delete;

    static bool isSupported(std::string_view bundleID);

    /// The question for the browser's current tab, in the words of a system that asks by script;
    /// nothing for an unsupported browser, and for one that cannot be asked so.
    static std::optional<std::string> script(std::string_view bundleID);

    /// The normalised domain of the browser's page; nothing without a browser, for an unsupported
    /// one, which is not asked, and for a page that is unknown or has no proper host.
    static std::optional<std::string> currentHost(
        const std::optional<std::string>& bundleID, BrowserPageReading& pages);
};

} // namespace brindlex
