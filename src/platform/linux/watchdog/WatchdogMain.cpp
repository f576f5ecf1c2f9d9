#include "platform/linux/watchdog/Watchdog.h"

#include <csignal>

/// `brindlex-watchdog DISPLAY`, with the connection to the program as descriptor 3. Ends when the
/// program does.
int main(int count, char** arguments)
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE})
        std::signal(signal, SIG_IGN);
    return brindlex::Watchdog(count > 1 ? arguments[1] : "").run();
}
