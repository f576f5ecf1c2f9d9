#include "support/basics/DatagramSocket.h"

#include <cstdint>
#include <string_view>
#include <sys/socket.h>
#include <sys/un.h>

namespace brindlex {

DatagramSocket::DatagramSocket(const std::filesystem::path& path)
    : handle_(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0))
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    path.native().copy(address.sun_path, sizeof address.sun_path - 1);
    if (::bind(handle_.descriptor(), reinterpret_cast<const sockaddr*>(&address), sizeof address)
        != 0)
        handle_.close();
}

std::optional<std::string> DatagramSocket::receive() const
{
    std::string datagram(1 << 20, '\0');
    const auto length
        = ::recv(handle_.descriptor(), datagram.data(), datagram.size(), MSG_DONTWAIT);
    if (length < 0)
        return {};
    datagram.resize(static_cast<std::size_t>(length));
    return datagram;
}

std::map<std::string, std::string> journalFields(const std::string& datagram)
{
    std::map<std::string, std::string> fields;
    std::string_view rest = datagram;
    for (;;) {
        const auto nameEnd = rest.find_first_of("=\n");
        if (nameEnd == std::string_view::npos)
            return fields;
        const std::string name(rest.substr(0, nameEnd));
        const bool hasLength = rest[nameEnd] == '\n';
        rest.remove_prefix(nameEnd + 1);
        std::size_t length = rest.find('\n');
        if (hasLength) {
            if (rest.size() < 8)
                return fields;
            length = 0;
            for (unsigned byte = 0; byte < 8; ++byte)
                length |= std::size_t{static_cast<std::uint8_t>(rest[byte])} << (8 * byte);
            rest.remove_prefix(8);
        }
        if (length >= rest.size() || rest[length] != '\n')
            return fields;
        fields[name] = rest.substr(0, length);
        rest.remove_prefix(length + 1);
    }
}

} // namespace brindlex
