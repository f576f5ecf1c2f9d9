#pragma once

#include "foundation/Subscription.h"

#include <functional>
#include <optional>
#include <string>

namespace brindlex {

/// The page of the tab that a browser shows. Main thread only.
class BrowserPageReading {
public:
    virtual ~BrowserPageReading() = default;

    /// The address of the current tab of the browser's front window; nothing when it is not known,
    /// and empty when the browser has no window. `script` is the question in the words of a system
    /// that asks browsers by script; others ignore it. A provider that reads beside the main thread
    /// returns at once the page that it last read of the window now in front, and starts
    /// reading anew.
    virtual std::optional<std::string> currentURL(
        const std::string& bundleID, const std::string& script)
        = 0;

    /// Notifies the observer that `currentURL` would return something else than it last did. A
    /// provider that reads inside `currentURL` never notifies.
    virtual Subscription observeChanges(std::function<void()> handler) = 0;
};

} // namespace brindlex
