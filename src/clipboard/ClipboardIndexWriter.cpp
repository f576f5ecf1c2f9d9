#include "clipboard/ClipboardIndexWriter.h"

#include "clipboard/ClipboardIndex.h"
#include "log/Log.h"

#include <utility>

namespace brindlex {

ClipboardIndexWriter::ClipboardIndexWriter(BackgroundQueue& queue, std::filesystem::path file)
    : queue_(queue), file_(std::move(file))
{
}

void ClipboardIndexWriter::write(ClipboardItems items)
{
    {
        const std::lock_guard guard(waiting_->mutex);
        waiting_->items = std::move(items);
    }
    queue_.post([waiting = waiting_, file = file_] {
        std::optional<ClipboardItems> newest;
        {
            const std::lock_guard guard(waiting->mutex);
            newest = std::exchange(waiting->items, std::nullopt);
        }
        if (!newest)
            return;
        if (const auto written = writeClipboardIndex(file, *newest); !written)
            Log::warn(
                "ClipboardHistoryStore: save failed: " + written.error(), logCategory::clipboard);
    });
}

} // namespace brindlex
