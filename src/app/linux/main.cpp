#include "app/linux/LinuxEntry.h"
#include "foundation/FatalError.h"
#include "log/Log.h"
#include "log/LogWriter.h"
#include "platform/linux/system/JournalSystemLog.h"
#include "platform/linux/system/XdgUserFolders.h"
#include "platform/posix/PosixAppGroupContainer.h"
#include "platform/posix/PosixClock.h"
#include "platform/posix/SerialQueue.h"
#include "platform/posix/StandardDescriptors.h"

#include <chrono>
#include <csignal>
#include <memory>

namespace {

/// How long the queue of the log looks for another line before its thread sleeps.
constexpr std::chrono::milliseconds logPause{10};

} // namespace

int main(int, char** arguments)
{
    using namespace brindlex;
    openStandardDescriptors();
    // A file that may grow no further is a failure to be handled, not a reason to end.
    std::signal(SIGXFSZ, SIG_IGN);
    PosixClock clock;
    XdgUserFolders userFolders;
    PosixAppGroupContainer container(userFolders.dataHome() / "group.com.brindlex.Brindlex");
    JournalSystemLog systemLog;
    SerialQueue logQueue("Brindlex.Log.file", logPause);
    const auto log = std::make_shared<LogWriter>(logQueue, container, systemLog, clock);
    Log::install(log);
    setFatalErrorHandler([log](const std::string& message) {
        Log::error(message, logCategory::lifecycle);
        log->drain();
    });

    const int status = runOnDesktop(arguments[0], clock, userFolders, container, *log);

    log->drain();
    setFatalErrorHandler(nullptr);
    Log::install(nullptr);
    return status;
}
