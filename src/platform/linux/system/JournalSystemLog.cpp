#include "platform/linux/system/JournalSystemLog.h"

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <ctime>
#include <sys/socket.h>
#include <sys/un.h>
#include <syslog.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace brindlex {
namespace {

constexpr std::string_view identifier = "brindlex";
constexpr std::size_t longestMessage = 32 * 1024;
constexpr auto retryInterval = std::chrono::milliseconds(1);
constexpr int mostRetries = 10;

int priority(SystemLogType type)
{
    switch (type) {
    case SystemLogType::info:
        return LOG_INFO;
    case SystemLogType::error:
        return LOG_ERR;
    case SystemLogType::standard:
        break;
    }
    return LOG_NOTICE;
}

/// The message up to the greatest length, without a part of a character at the cut.
std::string_view cut(std::string_view message)
{
    if (message.size() <= longestMessage)
        return message;
    auto length = longestMessage;
    const auto isContinuation = [&] { return (message[length] & 0xC0) == 0x80; };
    for (int step = 0; step < 3 && isContinuation(); ++step)
        --length;
    return message.substr(0, length);
}

/// One field in the journal's native protocol (systemd.io/JOURNAL_NATIVE_PROTOCOL): a value with
/// newlines is preceded by its length, little endian.
void appendField(std::string& datagram, std::string_view name, std::string_view value)
{
    datagram.append(name);
    if (value.find('\n') == std::string_view::npos) {
        datagram.append("=");
    } else {
        datagram.append("\n");
        for (unsigned byte = 0; byte < 8; ++byte)
            datagram += static_cast<char>(static_cast<std::uint64_t>(value.size()) >> (8 * byte));
    }
    datagram.append(value).append("\n");
}

std::string journalDatagram(SystemLogType type, std::string_view subsystem,
    std::string_view category, std::string_view message)
{
    std::string datagram;
    appendField(datagram, "MESSAGE", message);
    appendField(datagram, "PRIORITY", std::to_string(priority(type)));
    appendField(datagram, "SYSLOG_IDENTIFIER", identifier);
    appendField(datagram, "BRINDLEX_SUBSYSTEM", subsystem);
    appendField(datagram, "BRINDLEX_CATEGORY", category);
    return datagram;
}

/// The form of RFC 3164, whose time is local and whose names of months are English.
std::string syslogDatagram(SystemLogType type, std::string_view subsystem,
    std::string_view category, std::string_view message)
{
    constexpr std::string_view months = "JanFebMarAprMayJunJulAugSepOctNovDec";
    const auto now = std::time(nullptr);
    std::tm local = {};
    ::localtime_r(&now, &local);
    char time[32];
    const auto length = std::strftime(time, sizeof time, " %e %H:%M:%S ", &local);
    std::string datagram = "<" + std::to_string(LOG_USER | priority(type)) + ">";
    datagram.append(months.substr(static_cast<std::size_t>(local.tm_mon) * 3, 3));
    datagram.append(time, length).append(identifier).append("[");
    datagram.append(std::to_string(::getpid())).append("]: ").append(subsystem);
    return datagram.append(" [").append(category).append("] ").append(message);
}

} // namespace

JournalSystemLog::JournalSystemLog(
    std::filesystem::path journalSocket, std::filesystem::path syslogSocket)
    : journalSocket_(std::move(journalSocket)), syslogSocket_(std::move(syslogSocket)),
      handle_(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0))
{
}

void JournalSystemLog::write(SystemLogType type, const std::string& subsystem,
    const std::string& category, const std::string& message)
{
    const auto text = cut(message);
    if (!send(journalSocket_, journalDatagram(type, subsystem, category, text)))
        send(syslogSocket_, syslogDatagram(type, subsystem, category, text));
}

/// Whether there is somebody at the socket, even one who took nothing.
bool JournalSystemLog::send(const std::filesystem::path& socket, std::string_view datagram)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (socket.native().size() >= sizeof address.sun_path)
        return false;
    socket.native().copy(address.sun_path, sizeof address.sun_path - 1);
    for (int retry = isHeldUp_ ? mostRetries : 0;; ++retry) {
        const auto sent = ::sendto(handle_.descriptor(), datagram.data(), datagram.size(),
            MSG_DONTWAIT | MSG_NOSIGNAL, reinterpret_cast<const sockaddr*>(&address),
            sizeof address);
        if (sent >= 0) {
            isHeldUp_ = false;
            return true;
        }
        if (errno != EAGAIN && errno != EINTR && errno != ENOBUFS)
            return errno == EMSGSIZE;
        if (retry >= mostRetries) {
            isHeldUp_ = true;
            return true;
        }
        std::this_thread::sleep_for(retryInterval);
    }
}

} // namespace brindlex
