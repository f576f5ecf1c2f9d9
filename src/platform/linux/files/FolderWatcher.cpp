#include "platform/linux/files/FolderWatcher.h"

#include "foundation/FileHandle.h"

#include <QObject>
#include <QSocketNotifier>

#include <array>
#include <cstring>
#include <set>
#include <sys/inotify.h>
#include <unistd.h>
#include <utility>

namespace brindlex {
namespace {

constexpr std::uint32_t watchedEvents = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE
    | IN_CREATE | IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;

} // namespace

class FolderWatcher::Implementation {
public:
    Implementation(const std::filesystem::path& folder, Handler handler)
        : handler_(std::move(handler)), events_(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK))
    {
        isWatching_ = events_
            && ::inotify_add_watch(events_.descriptor(), folder.c_str(), watchedEvents) >= 0;
        if (!isWatching_)
            return;
        notifier_ = std::make_unique<QSocketNotifier>(events_.descriptor(), QSocketNotifier::Read);
        QObject::connect(
            notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { handOn(); });
    }

    bool isWatching() const { return isWatching_; }

private:
    /// Notifies of each name once, however often it stands in the events that wait.
    void handOn()
    {
        std::set<std::string> names;
        for (;;) {
            alignas(inotify_event) std::array<char, 16'384> buffer;
            const auto length = ::read(events_.descriptor(), buffer.data(), buffer.size());
            if (length <= 0)
                break;
            for (std::size_t at = 0; at < static_cast<std::size_t>(length);) {
                inotify_event event;
                std::memcpy(&event, buffer.data() + at, sizeof event);
                if (event.mask & IN_IGNORED)
                    isWatching_ = false;
                names.emplace(event.len > 0 ? buffer.data() + at + sizeof event : "");
                at += sizeof event + event.len;
            }
        }
        const auto handler = handler_;
        for (const auto& name : names)
            handler(name);
    }

    Handler handler_;
    FileHandle events_;
    std::unique_ptr<QSocketNotifier> notifier_;
    bool isWatching_ = false;
};

FolderWatcher::FolderWatcher(const std::filesystem::path& folder, Handler handler)
    : implementation_(std::make_unique<Implementation>(folder, std::move(handler)))
{
}

FolderWatcher::~FolderWatcher() = default;

bool FolderWatcher::isWatching() const { return implementation_->isWatching(); }

} // namespace brindlex
