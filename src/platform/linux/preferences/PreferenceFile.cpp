#include "platform/linux/preferences/PreferenceFile.h"

#include "foundation/FileReading.h"
#include "foundation/FileReplacement.h"
#include "foundation/PrivateFolder.h"
#include "log/Log.h"
#include "platform/linux/preferences/FolderLock.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

/// How long after its last change a damaged file may still be in the making, and for how long at
/// most that is waited for.
constexpr auto settlingTime = 1s;
constexpr auto longestSettling = 5s;
constexpr auto betweenLooks = 10ms;

std::string systemWords(int error) { return std::generic_category().message(error); }

std::int64_t nanoseconds(const timespec& time)
{
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

/// Whether the file has changed so lately that somebody may be writing to it.
bool isBeingWritten(const std::filesystem::path& path)
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    const auto changed = std::chrono::nanoseconds(nanoseconds(status.st_ctim));
    const auto age = std::chrono::system_clock::now().time_since_epoch() - changed;
    return age < settlingTime && age > -settlingTime;
}

/// The file that a symbolic link leads to, or the path itself.
std::filesystem::path resolved(const std::filesystem::path& path)
{
    std::error_code error;
    auto target = std::filesystem::canonical(path, error);
    return error ? path : target;
}

/// Gives the file another name unless that is taken; 0 or the reason in the form of `errno`.
int renameWithoutReplacing(const std::filesystem::path& from, const std::filesystem::path& to)
{
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // A file system that cannot do it in one step.
    struct stat taken = {};
    if (::lstat(to.c_str(), &taken) == 0)
        return EEXIST;
    return ::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

} // namespace

PreferenceFile::Finding PreferenceFile::look(Patience patience)
{
    switch (patience == Patience::settles ? examineSettled() : examine()) {
    case State::same:
        return Finding::unchanged;
    case State::readable:
        return Finding::changed;
    case State::unreadable:
        reportOnce("Preferences cannot be read and are not written: " + reason_);
        return Finding::unreadable;
    case State::missing:
        if (patience == Patience::waits)
            return Finding::unsettled;
        seen_ = Identity{};
        document_.clear();
        return Finding::changed;
    case State::damaged:
        break;
    }
    if (patience == Patience::waits)
        return Finding::unsettled;
    return setAside() ? Finding::setAside : Finding::unreadable;
}

bool PreferenceFile::write(
    const PreferenceDocument& memory, const std::set<std::string>& changedKeys)
{
    makePrivateFolder(path_.parent_path());
    const FolderLock lock(path_.parent_path());

    const auto state = examineSettled();
    if (state == State::unreadable) {
        reportOnce("Preferences cannot be read and are not written: " + reason_);
        return false;
    }
    if (state == State::damaged && !setAside())
        return false;
    const bool isThere = seen_ && seen_->exists && state != State::missing;
    auto content = isThere ? merged(document_, memory, changedKeys) : memory;
    if (isThere && isSameDocument(content, document_))
        return true;

    const auto text = preferencesText(content);
    const auto written = replaceFile(path_, text);
    if (!written) {
        reportOnce(
            "Preferences cannot be written: " + path_.string() + ": " + written.error().reason);
        return false;
    }
    document_ = std::move(content);
    hasReported_ = false;
    // Somebody who does not keep to the lock may have come in between.
    seen_ = identityOf(path_);
    if (seen_->size != static_cast<std::int64_t>(text.size()))
        seen_.reset();
    return true;
}

PreferenceFile::Identity PreferenceFile::identityOf(const std::filesystem::path& path)
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0)
        return {};
    return {true, status.st_dev, status.st_ino, status.st_size, nanoseconds(status.st_mtim),
        nanoseconds(status.st_ctim)};
}

/// Compares the file with what was seen last and reads it where it differs.
PreferenceFile::State PreferenceFile::examine()
{
    struct stat status = {};
    if (::stat(path_.c_str(), &status) != 0) {
        const int error = errno;
        if (error == ENOENT)
            return seen_ == Identity{} ? State::same : State::missing;
        reason_ = path_.string() + ": " + systemWords(error);
        return error == ELOOP ? State::damaged : State::unreadable;
    }
    const auto damaged = [&](const std::string& words) {
        reason_ = words;
        return State::damaged;
    };
    if (!S_ISREG(status.st_mode))
        return damaged("is not a regular file");
    if (static_cast<std::size_t>(status.st_size) > largestFile)
        return damaged("is larger than 64 MiB");
    const auto identity = identityOf(path_);
    if (seen_ == identity)
        return State::same;

    const auto text = readFile(path_, largestFile);
    if (!text) {
        reason_ = path_.string() + ": " + text.error().reason;
        return State::unreadable;
    }
    if (!*text)
        return State::missing;
    auto document = parsePreferences(**text);
    if (!document)
        return damaged(document.error().reason);
    document_ = *document;
    seen_ = identity;
    hasReported_ = false;
    return State::readable;
}

/// The same, which gives whoever is in the middle of writing the file the time to end.
PreferenceFile::State PreferenceFile::examineSettled()
{
    auto state = examine();
    auto damaged = identityOf(path_);
    const auto end = std::chrono::steady_clock::now() + longestSettling;
    while (state == State::damaged && isBeingWritten(path_)
        && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(betweenLooks);
        // A large file is not read again and again for nothing.
        if (const auto present = identityOf(path_); present != damaged) {
            state = examine();
            damaged = present;
        }
    }
    return state;
}

/// Moves what stands in the file's place out of the way.
bool PreferenceFile::setAside()
{
    const auto file = resolved(path_);
    auto aside = file;
    aside += ".corrupt";
    int error = renameWithoutReplacing(file, aside);
    for (int number = 2; error == EEXIST; ++number) {
        aside = file;
        aside += ".corrupt." + std::to_string(number);
        error = renameWithoutReplacing(file, aside);
    }
    if (error != 0) {
        reportOnce("Preferences " + reason_ + " and cannot be set aside: " + file.string() + ": "
            + systemWords(error));
        return false;
    }
    Log::error(
        "Preferences set aside as " + aside.string() + ": " + reason_, logCategory::lifecycle);
    seen_ = Identity{};
    return true;
}

void PreferenceFile::reportOnce(const std::string& message)
{
    if (!std::exchange(hasReported_, true))
        Log::error(message, logCategory::lifecycle);
}

} // namespace brindlex
