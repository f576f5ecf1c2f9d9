#pragma once

#include "foundation/FileHandle.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace brindlex {

/// A socket of the file system that other programs send datagrams to.
class DatagramSocket {
public:
    explicit DatagramSocket(const std::filesystem::path& path);

    /// The datagram that has waited longest; nothing when none waits. Never waits itself.
    std::optional<std::string> receive() const;

private:
    FileHandle handle_;
};

/// The fields of a datagram in the journal's native protocol. Of one that is malformed, what comes
/// before the fault.
std::map<std::string, std::string> journalFields(const std::string& datagram);

} // namespace brindlex
