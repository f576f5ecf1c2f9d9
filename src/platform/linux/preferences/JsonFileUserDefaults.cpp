#include "platform/linux/preferences/JsonFileUserDefaults.h"

#include "foundation/PrivateFolder.h"
#include "foundation/Text.h"

#include <algorithm>
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

/// The path, and where the symbolic links lead that stand there, step by step.
std::vector<std::filesystem::path> filesOnTheWay(const std::filesystem::path& path)
{
    constexpr std::size_t mostLinks = 40;
    std::vector files{path};
    while (files.size() <= mostLinks) {
        std::error_code isNoLink;
        const auto target = std::filesystem::read_symlink(files.back(), isNoLink);
        if (isNoLink)
            break;
        files.push_back(files.back().parent_path() / target);
    }
    return files;
}

} // namespace

JsonFileUserDefaults::JsonFileUserDefaults(
    const std::filesystem::path& file, MainThread& mainThread, BackgroundQueue& queue)
    : path_(file), mainThread_(mainThread), queue_(queue), file_(file),
      self_(std::make_shared<JsonFileUserDefaults*>(this))
{
    makePrivateFolder(path_.parent_path());
    watch(filesOnTheWay(path_));
    file_.look(PreferenceFile::Patience::settles);
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
    const auto* const present = valueIn(memory_, key);
    const bool isKnown = object ? present && *present == *object : !present;
    if (!isKnown)
        setInMemory(key, std::move(object));
    // What is known is written as well: another process may have written something else since.
    carryOut(sync_.change(key));
    if (!isKnown)
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

void JsonFileUserDefaults::setInMemory(
    const std::string& key, std::optional<PreferenceValue> object)
{
    auto preference = object ? storedPreference(withWellFormedText(*std::move(object))) : nullptr;
    const std::unique_lock guard(memoryMutex_);
    if (preference)
        memory_.insert_or_assign(key, std::move(preference));
    else
        memory_.erase(key);
}

void JsonFileUserDefaults::watch(const std::vector<std::filesystem::path>& files)
{
    watched_.clear();
    for (const auto& file : files)
        watched_.push_back({file,
            std::make_unique<FolderWatcher>(file.parent_path(),
                [this, name = file.filename().string()](const std::string& touched) {
                    if (touched.empty() || touched == name)
                        carryOut(sync_.touch());
                })});
}

/// A link may have been made to lead elsewhere, and a folder removed, or made by the first write.
void JsonFileUserDefaults::watchAnewIfNeeded()
{
    const auto files = filesOnTheWay(path_);
    const bool areTheSame = std::equal(files.begin(), files.end(), watched_.begin(), watched_.end(),
        [](const auto& path, const auto& watched) { return path == watched.path; });
    const bool areWatched = std::all_of(watched_.begin(), watched_.end(),
        [](const auto& file) { return file.folder->isWatching(); });
    if (areTheSame && areWatched)
        return;
    watch(files);
    // What was written there before it was watched.
    if (!areTheSame)
        carryOut(sync_.touch());
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
    watchAnewIfNeeded();
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
