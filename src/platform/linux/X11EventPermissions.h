#pragma once

#include "foundation/Subscribers.h"
#include "platform/EventPermissions.h"
#include "platform/linux/FolderWatcher.h"
#include "platform/linux/X11InputStream.h"

#include <filesystem>
#include <optional>

namespace brindlex {

/// X asks nobody: who may open a window may control the input. What stands for permission is that
/// the server can be tapped and that the user has not refused it; both questions have the same
/// answer.
///
/// The user refuses with a file, whatever is in it, and permits by removing it. A change of that is
/// told of where the file's folder exists; one of the server is not.
class X11EventPermissions : public EventPermissions {
public:
    /// Without a path nobody can refuse.
    explicit X11EventPermissions(X11InputStream& stream, std::filesystem::path refusal = {});

    bool isAccessibilityTrusted() override { return canListenToEvents(); }
    bool canListenToEvents() override;
    Subscription observeAccessibilityChanges(std::function<void()> handler) override
    {
        return observers_.add(std::move(handler));
    }

private:
    bool isRefused() const;

    X11InputStream& stream_;
    std::filesystem::path refusal_;
    Subscribers<std::function<void()>> observers_;
    std::optional<FolderWatcher> watcher_;
};

} // namespace brindlex
