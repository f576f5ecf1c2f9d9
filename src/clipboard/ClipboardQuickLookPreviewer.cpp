#include "clipboard/ClipboardQuickLookPreviewer.h"

#include "clipboard/ClipboardPreviews.h"
#include "platform/VirtualKey.h"

#include <utility>

namespace brindlex {

void ClipboardQuickLookPreviewer::open(const ClipboardItem& item)
{
    auto files = previewFiles(item, store_);
    // A key that is held opens once more each time it repeats.
    if (files.empty() || files == urls_)
        return;
    urls_ = std::move(files);
    previewing_.show(urls_);
}

void ClipboardQuickLookPreviewer::close()
{
    if (!isPreviewing())
        return;
    previewing_.close();
    urls_.clear();
    didClose_.notify();
}

bool ClipboardQuickLookPreviewer::releaseKey(std::int64_t keyCode)
{
    if (!isPreviewing() || keyCode != virtualKey::space)
        return false;
    close();
    return true;
}

Subscription ClipboardQuickLookPreviewer::observeDidClose(std::function<void()> handler)
{
    return didClose_.add(std::move(handler));
}

} // namespace brindlex
