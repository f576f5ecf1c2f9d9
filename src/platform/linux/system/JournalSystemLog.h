#pragma once

#include "foundation/FileHandle.h"
#include "platform/SystemLog.h"

#include <filesystem>
#include <string_view>

namespace brindlex {

/// The journal of systemd, or where it does not run the syslog daemon, or where there is none
/// either, nothing.
///
/// In the journal a message has the fields PRIORITY, SYSLOG_IDENTIFIER (brindlex),
/// BRINDLEX_SUBSYSTEM and BRINDLEX_CATEGORY; in the syslog subsystem and category stand before it.
/// Which of them is there is found out for each message, so a restart of either is survived. A
/// daemon that takes nothing is waited for 10 ms, and as long as it stays so not at all; its
/// messages are lost. Very long messages are cut at 32 KiB.
class JournalSystemLog : public SystemLog {
public:
    explicit JournalSystemLog(std::filesystem::path journalSocket = "/run/systemd/journal/socket",
        std::filesystem::path syslogSocket = "/dev/log");

    void write(SystemLogType type, const std::string& subsystem, const std::string& category,
        const std::string& message) override;

private:
    bool send(const std::filesystem::path& socket, std::string_view datagram);

    const std::filesystem::path journalSocket_;
    const std::filesystem::path syslogSocket_;
    const FileHandle handle_;
    bool isHeldUp_ = false;
};

} // namespace brindlex
