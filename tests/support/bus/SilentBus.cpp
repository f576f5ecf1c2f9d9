#include "support/bus/SilentBus.h"

#include "foundation/FatalError.h"

#include <sys/socket.h>
#include <sys/un.h>

namespace brindlex {

SilentBus::SilentBus() : socket_(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_un name = {};
    name.sun_family = AF_UNIX;
    const auto path = (folder_.path() / "bus").string();
    path.copy(name.sun_path, sizeof name.sun_path - 1);
    // The system takes the connections that nobody accepts.
    constexpr int waiting = 100;
    if (::bind(socket_.descriptor(), reinterpret_cast<const sockaddr*>(&name), sizeof name) != 0
        || ::listen(socket_.descriptor(), waiting) != 0)
        fatalError("Cannot listen at " + path);
}

std::string SilentBus::address() const { return "unix:path=" + (folder_.path() / "bus").string(); }

} // namespace brindlex
