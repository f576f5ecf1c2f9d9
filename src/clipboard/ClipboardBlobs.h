#pragma once

#include "foundation/FileProblem.h"
#include "foundation/Result.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace brindlex {

/// Whether the text is the name of a file in a folder, and leads to no other folder.
bool isBlobName(std::string_view name);

/// The pictures of the clipboard history: files of one folder, for the user alone.
///
/// A name that is none of a file in this folder has no file, whatever is asked for. Every operation
/// waits for the disk.
class ClipboardBlobs {
public:
    explicit ClipboardBlobs(std::filesystem::path folder) : folder_(std::move(folder)) { }

    const std::filesystem::path& folder() const { return folder_; }

    /// Where the blob is, whether or not it exists; nothing for a name that is no blob's.
    std::optional<std::filesystem::path> file(const std::string& name) const;

    /// Makes a new file of the bytes, and the folder where it is missing. What could be written of
    /// a blob that failed is removed again.
    Result<Done, FileProblem> write(const std::string& name, std::string_view bytes) const;

    /// A failure is passed over.
    void remove(const std::string& name) const;

    /// Removes every file with another name; failures are passed over.
    void removeAllBut(const std::unordered_set<std::string>& names) const;

private:
    std::filesystem::path folder_;
};

} // namespace brindlex
