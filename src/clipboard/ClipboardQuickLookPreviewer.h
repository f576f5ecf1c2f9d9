#pragma once

#include "clipboard/ClipboardItem.h"
#include "foundation/Subscribers.h"
#include "platform/FilePreviewing.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <vector>

namespace brindlex {

class ClipboardHistoryStore;

/// Shows an item of the history for as long as Space is held.
///
///     closed ──open, of an item with files──▶ previewing ──Space is released, close──▶ closed
///                                               │    ▲
///                                               └────┘ open, of an item with files
///
/// Main thread only.
class ClipboardQuickLookPreviewer {
public:
    /// What it works with outlives it.
    ClipboardQuickLookPreviewer(FilePreviewing& previewing, const ClipboardHistoryStore& store)
        : previewing_(previewing), store_(store)
    {
    }

    bool isPreviewing() const { return !urls_.empty(); }

    /// Shows the item; of one without a file that exists nothing is done. Waits for the disk.
    void open(const ClipboardItem& item);

    /// Closes what is shown, if anything is.
    void close();

    /// Takes the release of a key in a window of the program. True for a release that goes no
    /// further: that of Space, which closes the preview.
    bool releaseKey(std::int64_t keyCode);

    /// Notifies each time a preview has been closed.
    Subscription observeDidClose(std::function<void()> handler);

private:
    FilePreviewing& previewing_;
    const ClipboardHistoryStore& store_;
    /// What is shown; none while nothing is.
    std::vector<std::filesystem::path> urls_;
    Subscribers<std::function<void()>> didClose_;
};

} // namespace brindlex
