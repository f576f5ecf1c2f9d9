#include "platform/linux/preferences/JsonFileUserDefaults.h"

#include "foundation/Text.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace brindlex {
namespace {

/// Half of the time within which a change has to be on disk.
constexpr Seconds writeDelay = 0.03;
constexpr Seconds firstRetryDelay = 1;
constexpr Seconds longestRetryDelay = 60;
/// How long an editor may take to put a new file in the place of the old one.
constexpr Seconds settlingTime = 1;

/// The value with text as JSON can hold it.
PreferenceValue withWellFormedText(PreferenceValue value)
{
    if (const auto text = std::get_if<std::string>(&value); text && !isWellFormed(*text))
        return wellFormed(*text);
    if (const auto texts = std::get_if<std::vector<std::string>>(&value))
        for (auto& text : *texts)
            text = wellFormed(text);
    return value;
}

} // namespace

JsonFileUserDefaults::JsonFileUserDefaults(
    const std::filesystem::path& file, MainThread& mainThread, BackgroundQueue& queue)
    : path_(file), mainThread_(mainThread), queue_(queue), file_(file),
      retryDelay_(firstRetryDelay), self_(std::make_shared<JsonFileUserDefaults*>(this))
{
    std::error_code ignored;
    std::filesystem::create_directories(path_.parent_path(), ignored);
    watch();
    file_.look(PreferenceFile::Patience::acts);
    memory_ = file_.document();
}

JsonFileUserDefaults::~JsonFileUserDefaults()
{
    // Nobody is told any more; who listened may have gone halfway itself.
    subscribers_ = {};
    queue_.drain();
    takeOutcomes();
    write();
    queue_.drain();
}

std::optional<PreferenceValue> JsonFileUserDefaults::value(const std::string& key) const
{
    const std::shared_lock guard(memoryMutex_);
    const auto value = plainValue(memory_, key);
    return value ? std::optional(*value) : std::nullopt;
}

void JsonFileUserDefaults::set(const std::string& key, std::optional<PreferenceValue> object)
{
    // Only this thread changes the memory, so that it may look at it without the lock.
    const auto found = memory_.find(key);
    const auto* const present = plainValue(memory_, key);
    if (object ? present && *present == *object : found == memory_.end())
        return;
    auto preference = object ? storedPreference(withWellFormedText(*std::move(object))) : nullptr;
    {
        const std::unique_lock guard(memoryMutex_);
        if (preference)
            memory_.insert_or_assign(key, std::move(preference));
        else
            memory_.erase(key);
    }
    unwritten_.insert(key);
    writeSoon();
    subscribers_.notify();
}

void JsonFileUserDefaults::synchronize()
{
    queue_.drain();
    takeOutcomes();
    write();
    look(PreferenceFile::Patience::waits);
    queue_.drain();
    takeOutcomes();
}

Subscription JsonFileUserDefaults::observeChanges(std::function<void()> handler)
{
    return subscribers_.add(std::move(handler));
}

/// Watches the folder of the file, and of the file that a symbolic link in its place leads to.
void JsonFileUserDefaults::watch()
{
    const auto watcherOf = [this](const std::filesystem::path& file) {
        return std::make_unique<FolderWatcher>(file.parent_path(),
            [this, name = file.filename().string()](const std::string& touched) {
                if (touched.empty() || touched == name)
                    look(PreferenceFile::Patience::waits);
            });
    };
    folderWatcher_ = watcherOf(path_);
    std::error_code isNoLink;
    const auto target = std::filesystem::canonical(path_, isNoLink);
    targetWatcher_ = isNoLink || target == path_ ? nullptr : watcherOf(target);
}

void JsonFileUserDefaults::look(PreferenceFile::Patience patience)
{
    // What happens while a look is under way may be too late for it.
    if (isLooking_) {
        needsAnotherLook_ = true;
        return;
    }
    isLooking_ = true;
    perform([patience](PreferenceFile& file) {
        const auto found = file.look(patience);
        return Outcome{found, {}, file.document()};
    });
}

void JsonFileUserDefaults::writeSoon()
{
    if (!nextWrite_.isActive())
        nextWrite_ = mainThread_.after(writeDelay, [this] { write(); });
}

void JsonFileUserDefaults::write()
{
    nextWrite_.reset();
    if (isWriting_ || (unwritten_.empty() && !isFileLost_))
        return;
    nextTry_.reset();
    isWriting_ = true;
    isFileLost_ = false;
    beingWritten_ = std::exchange(unwritten_, {});
    perform([memory = memory_, keys = beingWritten_](PreferenceFile& file) {
        const bool isWritten = file.write(memory, keys);
        return Outcome{{}, isWritten, file.document()};
    });
}

void JsonFileUserDefaults::perform(std::function<Outcome(PreferenceFile&)> work)
{
    queue_.post([this, work = std::move(work), self = std::weak_ptr(self_)] {
        auto outcome = work(file_);
        {
            const std::lock_guard guard(outcomesMutex_);
            outcomes_.push_back(std::move(outcome));
        }
        mainThread_.post([self] {
            if (const auto present = self.lock())
                (*present)->takeOutcomes();
        });
    });
}

void JsonFileUserDefaults::takeOutcomes()
{
    std::deque<Outcome> outcomes;
    {
        const std::lock_guard guard(outcomesMutex_);
        outcomes.swap(outcomes_);
    }
    for (const auto& outcome : outcomes)
        take(outcome);
}

void JsonFileUserDefaults::take(const Outcome& outcome)
{
    using Patience = PreferenceFile::Patience;
    using Finding = PreferenceFile::Finding;
    if (outcome.isWritten) {
        isWriting_ = false;
        if (*outcome.isWritten) {
            retryDelay_ = firstRetryDelay;
            if (!unwritten_.empty())
                writeSoon();
        } else {
            unwritten_.merge(beingWritten_);
            nextTry_ = mainThread_.after(retryDelay_, [this] { write(); });
            retryDelay_ = std::min(2 * retryDelay_, longestRetryDelay);
        }
        beingWritten_.clear();
    }
    if (outcome.found) {
        isLooking_ = false;
        settling_.reset();
        if (outcome.found == Finding::unsettled)
            settling_ = mainThread_.after(settlingTime, [this] { look(Patience::acts); });
        if (outcome.found == Finding::setAside) {
            isFileLost_ = true;
            writeSoon();
        }
        if (std::exchange(needsAnotherLook_, false))
            look(Patience::waits);
    }
    // The folder was removed, or made by the first write.
    if (!folderWatcher_->isWatching())
        watch();
    adopt(outcome.document);
}

/// Takes over the content of the file where this process has nothing newer.
void JsonFileUserDefaults::adopt(const PreferenceDocument& file)
{
    auto newer = unwritten_;
    newer.insert(beingWritten_.begin(), beingWritten_.end());
    auto content = merged(file, memory_, newer);
    if (isSameDocument(content, memory_))
        return;
    {
        const std::unique_lock guard(memoryMutex_);
        memory_.swap(content);
    }
    subscribers_.notify();
}

} // namespace brindlex
