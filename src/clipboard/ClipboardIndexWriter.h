#pragma once

#include "clipboard/ClipboardItems.h"
#include "platform/BackgroundQueue.h"

#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>

namespace brindlex {

/// Writes the index of the clipboard history beside the main thread.
///
/// What is written last is what was handed over last, and the file is whole at every moment. A
/// failure is logged and leaves the file as it was. What has been handed over is written also when
/// the writer has gone; the queue outlives it. Main thread only.
class ClipboardIndexWriter {
public:
    ClipboardIndexWriter(BackgroundQueue& queue, std::filesystem::path file);

    /// Returns without waiting. Of lists that wait together only the newest is written.
    void write(ClipboardItems items);

private:
    struct Waiting {
        std::mutex mutex;
        std::optional<ClipboardItems> items;
    };

    BackgroundQueue& queue_;
    std::filesystem::path file_;
    std::shared_ptr<Waiting> waiting_ = std::make_shared<Waiting>();
};

} // namespace brindlex
