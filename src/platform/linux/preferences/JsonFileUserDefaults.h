#pragma once

#include "foundation/Subscribers.h"
#include "platform/BackgroundQueue.h"
#include "platform/MainThread.h"
#include "platform/UserDefaults.h"
#include "platform/linux/files/FolderWatcher.h"
#include "platform/linux/preferences/PreferenceFile.h"
#include "platform/linux/preferences/PreferenceFileSync.h"

#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <shared_mutex>
#include <string>
#include <vector>

namespace brindlex {

/// Preferences in a file that holds one JSON object and that other processes may read and write.
///
/// All that is set within 30 ms is written together, on the queue, which is this object's own; the
/// main thread waits for the disk at construction, in `synchronize` and at destruction only. What
/// another process writes is taken over under all keys but those that this process has set since
/// and not written yet. A write that fails is repeated with the next change and by itself after 1
/// s, 2 s and so on up to a minute. A file that was removed counts as empty after a second without
/// it. The file may be reached by symbolic links, which may be made to lead elsewhere.
class JsonFileUserDefaults : public UserDefaults {
public:
    JsonFileUserDefaults(
        const std::filesystem::path& file, MainThread& mainThread, BackgroundQueue& queue);
    ~JsonFileUserDefaults() override;
    JsonFileUserDefaults(const JsonFileUserDefaults&) = delete;
    JsonFileUserDefaults& operator=(const JsonFileUserDefaults&) = delete;

    std::optional<PreferenceValue> value(const std::string& key) const override;
    void set(const std::string& key, std::optional<PreferenceValue> object) override;
    void synchronize() override;
    Subscription observeChanges(std::function<void()> handler) override;

private:
    /// What a piece of work on the queue has done.
    struct Outcome {
        std::optional<PreferenceFile::Finding> found{};
        std::optional<bool> isWritten{};
        PreferenceDocument document{};
    };

    /// A file whose changes are noticed: the preferences, or a link on the way to them.
    struct WatchedFile {
        std::filesystem::path path{};
        std::unique_ptr<FolderWatcher> folder{};
    };

    void setInMemory(const std::string& key, std::optional<PreferenceValue> object);
    void watch(const std::vector<std::filesystem::path>& files);
    void watchAnewIfNeeded();
    void carryOut(const PreferenceFileSync::Actions& actions);
    void look(PreferenceFile::Patience patience);
    void write(const std::set<std::string>& changedKeys);
    void perform(std::function<Outcome(PreferenceFile&)> work);
    void takeOutcomes();
    void take(const Outcome& outcome);
    void adopt(const PreferenceDocument& file);

    const std::filesystem::path path_;
    MainThread& mainThread_;
    BackgroundQueue& queue_;
    /// Used on the queue only, once it is constructed.
    PreferenceFile file_;

    mutable std::shared_mutex memoryMutex_;
    PreferenceDocument memory_;
    PreferenceFileSync sync_;
    Subscribers<std::function<void()>> subscribers_;

    std::mutex outcomesMutex_;
    std::deque<Outcome> outcomes_;
    std::shared_ptr<JsonFileUserDefaults*> self_;
    std::map<PreferenceFileSync::Timer, Subscription> timers_;
    std::vector<WatchedFile> watched_;
};

} // namespace brindlex
