#include "clipboard/ClipboardHistoryMonitor.h"

#include "clipboard/ClipboardClassification.h"
#include "clipboard/ClipboardFileProblem.h"
#include "clipboard/ClipboardFingerprint.h"
#include "clipboard/ClipboardReader.h"
#include "log/Log.h"

#include <cmath>
#include <utility>

namespace brindlex {
namespace {

/// What of a time is its place among the intervals and not the clock's rounding.
constexpr Seconds clockGrain = 1e-6;

std::optional<std::string> frontmostBundleID(const RunningApplications& applications)
{
    const auto application = applications.frontmost();
    return application ? application->bundleIdentifier : std::nullopt;
}

} // namespace

ClipboardHistoryMonitor::ClipboardHistoryMonitor(
    const Abilities& abilities, ClipboardHistoryStore& store)
    : abilities_(abilities), store_(store), lastChangeCount_(abilities.pasteboard.changeCount())
{
}

void ClipboardHistoryMonitor::start()
{
    if (changes_.isActive())
        return;
    lastChangeCount_ = abilities_.pasteboard.changeCount();
    startTime_ = abilities_.clock.continuousTime();
    changes_ = abilities_.pasteboard.observeChanges([this] { awaitTick(); });
    Log::info("ClipboardHistoryMonitor: started", logCategory::clipboard);
}

void ClipboardHistoryMonitor::stop()
{
    changes_.reset();
    timer_.reset();
    awaitsTick_ = false;
}

/// Asks to be woken at the next of the times to look.
void ClipboardHistoryMonitor::awaitTick()
{
    if (std::exchange(awaitsTick_, true))
        return;
    const auto running = abilities_.clock.continuousTime() - startTime_;
    const auto next = (std::floor((running + clockGrain) / interval) + 1) * interval;
    timer_ = abilities_.mainThread.after(next - running, [this] { tick(); });
}

void ClipboardHistoryMonitor::tick()
{
    awaitsTick_ = false;
    const auto& pasteboard = abilities_.pasteboard;
    const auto changeCount = pasteboard.changeCount();
    if (std::exchange(lastChangeCount_, changeCount) == changeCount)
        return;
    auto paths = pasteboard.filePaths();
    const auto kind = clipboardKind(pasteboard.types(), !paths.empty());
    if (!kind)
        return;
    ClipboardItem item{.id = Uuid::random(),
        .kind = *kind,
        .createdAt = abilities_.clock.now(),
        .sourceBundleID = frontmostBundleID(abilities_.applications)};
    switch (*kind) {
    case ClipboardItemKind::text:
        return recordText(std::move(item));
    case ClipboardItemKind::image:
        return recordImage(std::move(item));
    case ClipboardItemKind::file:
        return recordFiles(std::move(item), std::move(paths));
    }
}

void ClipboardHistoryMonitor::recordText(ClipboardItem item)
{
    item.text = abilities_.pasteboard.text();
    if (!item.text || item.text->empty())
        return;
    item.fingerprint = textFingerprint(*item.text);
    if (!isKnown(item.fingerprint))
        store_.add(std::move(item));
}

void ClipboardHistoryMonitor::recordImage(ClipboardItem item)
{
    const auto png = ClipboardReader::imagePNGData(abilities_.pasteboard, abilities_.images);
    if (!png)
        return;
    item.fingerprint = imageFingerprint(*png);
    if (isKnown(item.fingerprint))
        return;
    item.imageBlobName = item.id.text() + ".png";
    const auto written = store_.writeBlob(*item.imageBlobName, *png);
    if (!written) {
        Log::warn("ClipboardHistoryStore: write blob failed: " + inWords(written.error()),
            logCategory::clipboard);
        return;
    }
    store_.add(std::move(item));
}

void ClipboardHistoryMonitor::recordFiles(ClipboardItem item, std::vector<std::string> paths)
{
    item.fingerprint = fileFingerprint(paths);
    item.fileURLStrings = std::move(paths);
    if (!isKnown(item.fingerprint))
        store_.add(std::move(item));
}

/// Whether the history has the content already, which is then moved as copied again.
bool ClipboardHistoryMonitor::isKnown(const std::string& fingerprint)
{
    const bool contains = store_.contains(fingerprint);
    if (contains)
        store_.touch(fingerprint);
    return contains;
}

} // namespace brindlex
