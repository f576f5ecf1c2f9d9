#pragma once

#include "platform/AccessibilityTree.h"
#include "platform/BackgroundQueue.h"
#include "platform/linux/x11/X11Connection.h"

#include <memory>

namespace brindlex {

/// The elements on the screen as programs offer them to assistive technology (AT-SPI).
///
/// Questions are asked on the queue, which should be for them alone; the main thread waits for each
/// reply no longer than its time-out, and for all that follow from one `elementAt` no longer than
/// `timePerPoint` together, since an event of the user's waits with it. The first question connects
/// to the accessibility bus, which may take longer: it is then without a result. Main thread only.
class AccessibleElementTree : public AccessibilityTree {
public:
    static constexpr Seconds usualTimePerPoint = 0.06;

    AccessibleElementTree(X11Connection& connection, BackgroundQueue& queue,
        Seconds timePerPoint = usualTimePerPoint);
    ~AccessibleElementTree() override;
    AccessibleElementTree(const AccessibleElementTree&) = delete;
    AccessibleElementTree& operator=(const AccessibleElementTree&) = delete;

    std::shared_ptr<AccessibilityElement> elementAt(Point point, Seconds timeout) override;

private:
    class Questions;
    class Element;

    X11Connection& connection_;
    BackgroundQueue& queue_;
    Seconds timePerPoint_;
    std::shared_ptr<Questions> questions_;
};

} // namespace brindlex
