#include "platform/linux/preferences/JsonFileUserDefaults.h"

#include "foundation/Text.h"

#include <system_error>
#include <utility>

namespace brindlex {
namespace {

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
      self_(std::make_shared<JsonFileUserDefaults*>(this))
{
    std::error_code ignored;
    std::filesystem::create_directories(path_.parent_path(), ignored);
    watch();
    file_.look(PreferenceFile::Patience::acts);
    memory_ = file_.document();
}

JsonFileUserDefaults::~JsonFileUserDefaults()
{
    // Nobody is notified any more; who subscribed may have gone halfway itself.
    subscribers_ = {};
    queue_.drain();
    takeOutcomes();
    carryOut(sync_.flush());
    queue_.drain();
}

std::optional<PreferenceValue> JsonFileUserDefaults::value(const std::string& key) const
{
    const std::shared_lock guard(memoryMutex_);
    const auto value = valueIn(memory_, key);
    return value ? std::optional(*value) : std::nullopt;
}

void JsonFileUserDefaults::set(const std::string& key, std::optional<PreferenceValue> object)
{
    // Only this thread changes the memory, so that it may look at it without the lock.
    const auto found = memory_.find(key);
    const auto* const present = valueIn(memory_, key);
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
    carryOut(sync_.change(key));
    subscribers_.notify();
}

void JsonFileUserDefaults::synchronize()
{
    queue_.drain();
    takeOutcomes();
    carryOut(sync_.flush());
    carryOut(sync_.touch());
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
                    carryOut(sync_.touch());
            });
    };
    folderWatcher_ = watcherOf(path_);
    std::error_code isNoLink;
    const auto target = std::filesystem::canonical(path_, isNoLink);
    targetWatcher_ = isNoLink || target == path_ ? nullptr : watcherOf(target);
}

void JsonFileUserDefaults::carryOut(const PreferenceFileSync::Actions& actions)
{
    using Action = PreferenceFileSync::Action;
    for (const auto& action : actions)
        match(
            action, [this](const Action::Write& due) { write(due.changedKeys); },
            [this](const Action::Look& due) { look(due.patience); },
            [this](const Action::StartTimer& due) {
                timers_[due.timer] = mainThread_.after(
                    due.delay, [this, timer = due.timer] { carryOut(sync_.fire(timer)); });
            },
            [this](const Action::StopTimer& due) { timers_.erase(due.timer); });
}

void JsonFileUserDefaults::look(PreferenceFile::Patience patience)
{
    perform([patience](PreferenceFile& file) {
        const auto found = file.look(patience);
        return Outcome{found, {}, file.document()};
    });
}

void JsonFileUserDefaults::write(const std::set<std::string>& changedKeys)
{
    perform([memory = memory_, changedKeys](PreferenceFile& file) {
        const bool isWritten = file.write(memory, changedKeys);
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
    if (outcome.isWritten)
        carryOut(sync_.endWrite(*outcome.isWritten));
    if (outcome.found)
        carryOut(sync_.endLook(*outcome.found));
    // The folder was removed, or made by the first write.
    if (!folderWatcher_->isWatching())
        watch();
    adopt(outcome.document);
}

/// Takes over the content of the file where this process has nothing newer.
void JsonFileUserDefaults::adopt(const PreferenceDocument& file)
{
    auto content = merged(file, memory_, sync_.pendingKeys());
    if (isSameDocument(content, memory_))
        return;
    {
        const std::unique_lock guard(memoryMutex_);
        memory_.swap(content);
    }
    subscribers_.notify();
}

} // namespace brindlex
