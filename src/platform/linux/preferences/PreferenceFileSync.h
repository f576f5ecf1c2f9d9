#pragma once

#include "foundation/Cases.h"
#include "foundation/Date.h"
#include "platform/linux/preferences/PreferenceFile.h"

#include <set>
#include <string>
#include <vector>

namespace brindlex {

/// When the file of preferences is written, and when it is looked at for what others wrote.
///
///     saved ──change──▶ due ──30 ms──▶ writing ──done──▶ saved, or due after a change meanwhile
///                        ▲              │   ▲
///                     change        failed  1 s, 2 s, 4 s … 60 s
///                        │              ▼   │
///                        └────────────── waiting
///
///     resting ──touch──▶ looking ──done──▶ resting, or looking after a touch meanwhile
///                         │   ▲
///                  unsettled  touch; or 1 s, and then with the patience that acts
///                         ▼   │
///                        settling
///
/// One write and one look are under way at a time. A file that was set aside is due to be written
/// anew. Each event returns what is to be done about it, in order; what was not under way or not
/// running ends or fires without a consequence.
class PreferenceFileSync {
public:
    enum class Timer { write, retry, settle };

    struct Action {
        /// Write what the memory has under the changed keys; `endWrite` follows.
        struct Write {
            std::set<std::string> changedKeys{};
            bool operator==(const Write&) const = default;
        };
        /// Look at the file; `endLook` follows.
        struct Look {
            PreferenceFile::Patience patience = PreferenceFile::Patience::waits;
            bool operator==(const Look&) const = default;
        };
        /// From the beginning, should it be running.
        struct StartTimer {
            Timer timer = Timer::write;
            Seconds delay = 0;
            bool operator==(const StartTimer&) const = default;
        };
        struct StopTimer {
            Timer timer = Timer::write;
            bool operator==(const StopTimer&) const = default;
        };

        using Any = Cases<Write, Look, StartTimer, StopTimer>;
    };
    using Actions = std::vector<Action::Any>;

    /// The keys that were changed in memory and are not in the file yet.
    std::set<std::string> pendingKeys() const;

    /// The memory has another value under the key.
    Actions change(const std::string& key);
    /// What is to be written must not wait any longer.
    Actions flush();
    /// Somebody may have written the file.
    Actions touch();
    Actions fire(Timer timer);
    Actions endWrite(bool isWritten);
    Actions endLook(PreferenceFile::Finding found);

private:
    void write(Actions& actions);
    void writeSoon(Actions& actions);
    void look(PreferenceFile::Patience patience, Actions& actions);
    void start(Timer timer, Seconds delay, Actions& actions);
    void stop(Timer timer, Actions& actions);

    static constexpr Seconds firstRetryDelay = 1;

    std::set<Timer> running_;
    std::set<std::string> changed_;
    std::set<std::string> beingWritten_;
    Seconds retryDelay_ = firstRetryDelay;
    bool isWriting_ = false;
    /// Whether the file was set aside, so that it has to be written without a change as well.
    bool isFileLost_ = false;
    bool isLostBeingWritten_ = false;
    bool isLooking_ = false;
    bool needsAnotherLook_ = false;
};

} // namespace brindlex
