#include "clipboard/ClipboardHistoryMeter.h"

#include "clipboard/ClipboardHistoryBytes.h"

#include <utility>

namespace brindlex {
namespace {

/// Longer than a change waits to be written.
constexpr Seconds betweenCounts = 1;

} // namespace

ClipboardHistoryMeter::ClipboardHistoryMeter(
    const ClipboardHistoryStore& store, MainThread& mainThread, BackgroundQueue& queue)
    : store_(store), mainThread_(mainThread), queue_(queue),
      measure_({store.items().value().size(), {}}),
      itemsChanges_(store.items().stream().withoutFirst().subscribe(
          [this](const ClipboardItems& items) { receive(items.size()); }))
{
}

void ClipboardHistoryMeter::start()
{
    if (!std::exchange(isRunning_, true))
        count();
}

void ClipboardHistoryMeter::stop()
{
    isRunning_ = false;
    hasChanged_ = false;
    wait_.reset();
}

void ClipboardHistoryMeter::receive(std::size_t items)
{
    measure_.set({items, measure_.value().bytes});
    if (isRunning_)
        countLater();
}

/// Where a count is still on its way, it is one of an older state.
void ClipboardHistoryMeter::count()
{
    if (std::exchange(isCounting_, true)) {
        countLater();
        return;
    }
    queue_.post([this, alive = lifetime_.watch(), &mainThread = mainThread_,
                    index = store_.indexURL(), blobs = store_.blobsDirectory()] {
        mainThread.post([this, alive, bytes = clipboardHistoryBytes(index, blobs)] {
            if (!alive.expired())
                finishCount(bytes);
        });
    });
}

void ClipboardHistoryMeter::countLater()
{
    if (wait_.isActive())
        hasChanged_ = true;
    else
        wait_ = mainThread_.after(betweenCounts, [this] { finishWait(); });
}

void ClipboardHistoryMeter::finishWait()
{
    wait_.reset();
    count();
    if (std::exchange(hasChanged_, false))
        countLater();
}

void ClipboardHistoryMeter::finishCount(std::optional<std::uintmax_t> bytes)
{
    isCounting_ = false;
    measure_.set({measure_.value().items, bytes});
}

} // namespace brindlex
