#include "app/linux/CommandLine.h"
#include "app/linux/LinuxEntry.h"
#include "app/linux/ProgramBuild.h"
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
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

/// How long the queue of the log looks for another line before its thread sleeps.
constexpr std::chrono::milliseconds logPause{10};

int runProgram(char* name, bool isStartedAtLogin)
{
    using namespace brindlex;
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

    const int status = runOnDesktop(name, isStartedAtLogin, clock, userFolders, container, *log);

    log->drain();
    setFatalErrorHandler(nullptr);
    Log::install(nullptr);
    return status;
}

int print(const std::string& text)
{
    if (std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0)
        return EXIT_SUCCESS;
    std::perror("brindlex: write error");
    return EXIT_FAILURE;
}

int refuse(const std::string& words)
{
    std::fputs(words.c_str(), stderr);
    return brindlex::CommandLine::refusedStatus;
}

} // namespace

int main(int count, char** arguments)
{
    using namespace brindlex;
    openStandardDescriptors();
    return match(
        readCommandLine({arguments, arguments + count}, programBuild()),
        [&](const CommandLine::Run& run) { return runProgram(arguments[0], run.isStartedAtLogin); },
        [](const CommandLine::Print& printing) { return print(printing.text); },
        [](const CommandLine::Refuse& refusal) { return refuse(refusal.words); });
}
