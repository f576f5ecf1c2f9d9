#include "ProcessorTime.h"

#include <ctime>
#include <sys/socket.h>

namespace brindlex {

double secondsUsedBy(pid_t process)
{
    clockid_t clock{};
    timespec used{};
    if (clock_getcpuclockid(process, &clock) != 0 || clock_gettime(clock, &used) != 0)
        return 0;
    return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) / 1e9;
}

pid_t processOfServer(const XConnection& server)
{
    ucred peer{};
    socklen_t size = sizeof(peer);
    getsockopt(xcb_get_file_descriptor(server.get()), SOL_SOCKET, SO_PEERCRED, &peer, &size);
    return peer.pid;
}

} // namespace brindlex
