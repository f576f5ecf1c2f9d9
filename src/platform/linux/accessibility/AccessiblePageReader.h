#pragma once

#include "foundation/Result.h"
#include "platform/linux/accessibility/AccessibilityBus.h"
#include "platform/linux/accessibility/TitleMatch.h"
#include "platform/linux/windows/ActiveWindow.h"

#include <cstdint>
#include <string>
#include <vector>

namespace brindlex {

/// Why the page of a window was not read.
enum class PageProblem {
    /// The browser did not reply in time: what was known before may still hold.
    busy,
    /// The browser says nothing about its page, or cannot be found on the bus.
    unknown,
};

/// Reads the address of the page that a browser window shows from its accessible tree.
///
/// The window is found among those of its process by its title; of several that fit as well, by
/// being the active one. Without one that fits there is no page: that of another window would be
/// worse. A browser that lives in a container has another process on the bus than on the screen:
/// it is found by exactly its title. One worker thread only; a reading takes 1 to 2 ms where
/// nothing else is going on, and never longer than the limits.
class AccessiblePageReader {
public:
    /// Longer addresses count as unknown: they hold whole documents and name no host.
    static constexpr int longestAddress = 65536;

    explicit AccessiblePageReader(const AccessibilityLimits& limits = {}) : bus_(limits) { }

    Result<std::string, PageProblem> read(const ActiveWindow& window);

private:
    /// A window and what it is in the accessible tree.
    struct KnownFrame {
        WindowIdentity window{};
        ProcessIdentity processIdentifier{};
        AccessibleObject frame{};
    };
    struct FoundFrame {
        AccessibleObject frame{};
        /// Whether no other window fits as well.
        bool isCertain = false;
    };

    const KnownFrame* known(const ActiveWindow& window) const;
    void remember(const ActiveWindow& window, const AccessibleObject& frame);
    void forget(const ActiveWindow& window);

    AccessibilityResult<FoundFrame> find(const ActiveWindow& window);
    AccessibilityResult<FoundFrame> findIn(const std::vector<AccessibleObject>& applications,
        const std::string& title, TitleMatch leastMatch);
    AccessibilityResult<AccessibleObject> activeOne(const std::vector<AccessibleObject>& frames);
    AccessibilityResult<std::vector<AccessibleObject>> documentsOf(const AccessibleObject& frame);
    AccessibilityResult<std::string> pageOf(const AccessibleObject& frame);

    AccessibilityBus bus_;
    std::vector<KnownFrame> knownFrames_;
};

} // namespace brindlex
