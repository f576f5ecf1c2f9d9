#pragma once

#include "platform/linux/preferences/PreferenceDocument.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <set>
#include <string>

namespace brindlex {

/// The file that several processes keep their preferences in.
///
/// A process that writes holds a lock on the folder from its reading to its writing, so that
/// nobody's change gets lost. What is damaged (not one JSON object, nested too deeply, larger than
/// 64 MiB, no regular file) is set aside under the name with the suffix "corrupt", numbered where
/// there is one already, and never overwritten or removed. A file that cannot be read is left alone
/// and nothing is written as long as that lasts. Both, and a failure to write, are logged, a
/// lasting failure once. The folder is made for the user alone where it is missing.
///
/// Every operation waits for the disk. One thread at a time.
class PreferenceFile {
public:
    static constexpr std::size_t largestFile = 64 * 1024 * 1024;

    explicit PreferenceFile(std::filesystem::path path) : path_(std::move(path)) { }

    /// What to do about a file that is missing or damaged, since somebody may be about to write it:
    /// `waits` leaves that to the caller, `settles` waits itself for who is writing to a damaged
    /// file until that has not changed for a second, though no longer than five, and `acts` does
    /// not wait.
    enum class Patience { waits, settles, acts };

    enum class Finding { unchanged, changed, unsettled, setAside, unreadable };

    /// Looks whether the file is another than at the last time; `document` has its content
    /// afterwards. With `waits` a missing or damaged file is only returned as unsettled.
    Finding look(Patience patience);

    /// Brings what `memory` has under the changed keys into the file, and all that it has where
    /// there is no file; `document` has the content of the file afterwards. Waits for who is
    /// writing to the file, as `settles` does. False when the file could not be written and is as
    /// it was.
    bool write(const PreferenceDocument& memory, const std::set<std::string>& changedKeys);

    /// The content of the file as far as this process knows.
    const PreferenceDocument& document() const { return document_; }

private:
    /// What distinguishes one state of a file from another.
    struct Identity {
        bool exists = false;
        std::uint64_t device = 0;
        std::uint64_t inode = 0;
        std::int64_t size = 0;
        std::int64_t modified = 0;
        std::int64_t changed = 0;

        bool operator==(const Identity&) const = default;
    };
    enum class State { same, readable, missing, damaged, unreadable };

    State examine();
    State examineSettled();
    bool setAside();
    void reportOnce(const std::string& message);
    static Identity identityOf(const std::filesystem::path& path);

    const std::filesystem::path path_;
    std::optional<Identity> seen_;
    PreferenceDocument document_;
    std::string reason_;
    bool hasReported_ = false;
};

} // namespace brindlex
