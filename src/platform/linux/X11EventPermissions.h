#pragma once

#include "platform/EventPermissions.h"
#include "platform/linux/X11InputStream.h"

namespace brindlex {

/// X asks nobody: who may open a window may control the input. What stands for permission is that
/// the server can be tapped at all; both questions have the same answer, and nothing tells of a
/// change.
class X11EventPermissions : public EventPermissions {
public:
    explicit X11EventPermissions(X11InputStream& stream) : stream_(stream) { }

    bool isAccessibilityTrusted() override { return canListenToEvents(); }
    bool canListenToEvents() override { return stream_.session() != nullptr; }
    Subscription observeAccessibilityChanges(std::function<void()>) override
    {
        return Subscription([] {});
    }

private:
    X11InputStream& stream_;
};

} // namespace brindlex
