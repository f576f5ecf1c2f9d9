#include "platform/linux/watchdog/TapWatchdog.h"

#include "log/Log.h"

#include <QSocketNotifier>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <system_error>
#include <thread>
#include <utility>

namespace brindlex {
namespace {

/// Somebody has to wait for a process, or it stays in the table of processes.
void waitBeside(pid_t process)
{
    try {
        std::thread([process] { waitpid(process, nullptr, 0); }).detach();
    } catch (const std::system_error& noThread) {
        Log::warn(std::string("Input watchdog: ") + noThread.what(), logCategory::mouse);
    }
}

} // namespace

TapWatchdog::TapWatchdog(std::filesystem::path program, std::string display)
    : program_(std::move(program)), display_(std::move(display))
{
}

TapWatchdog::~TapWatchdog() { dismiss(); }

std::filesystem::path TapWatchdog::besideThisProgram()
{
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path()
        / "brindlex-watchdog";
}

void TapWatchdog::watch(WatchdogMessage order)
{
    if (!socket_)
        start();
    if (std::exchange(watched_, order) != order)
        notify(order);
}

void TapWatchdog::rest()
{
    if (std::exchange(watched_, {}) != WatchdogMessage{})
        notify({WatchdogMessage::Order::rest});
}

void TapWatchdog::dismiss()
{
    if (!socket_)
        return;
    notify({WatchdogMessage::Order::dismiss});
    ended();
}

void TapWatchdog::start()
{
    if (startsLeft_ == 0)
        return;
    --startsLeft_;
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        Log::warn(std::string("Input watchdog: ") + std::strerror(errno), logCategory::mouse);
        return;
    }
    FileHandle own(ends[0]);
    const FileHandle theirs(ends[1]);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, theirs.descriptor(), watchdogDescriptor);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    // What is sent to the program's terminal or group does not concern it.
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    auto path = program_.string();
    const std::array<char*, 3> arguments{path.data(), display_.data(), nullptr};
    const int error
        = posix_spawn(&process_, path.c_str(), &actions, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        Log::warn("Input watchdog: cannot start " + path + ": " + std::strerror(error),
            logCategory::mouse);
        startsLeft_ = 0;
        return;
    }
    socket_ = std::move(own);
    notifier_ = std::make_unique<QSocketNotifier>(socket_.descriptor(), QSocketNotifier::Read);
    QObject::connect(
        notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { respond(); });
}

void TapWatchdog::notify(WatchdogMessage message) const
{
    if (socket_)
        send(socket_.descriptor(), &message, sizeof(message), MSG_NOSIGNAL | MSG_DONTWAIT);
}

void TapWatchdog::respond()
{
    WatchdogMessage request;
    const auto size = recv(socket_.descriptor(), &request, sizeof(request), MSG_DONTWAIT);
    if (size > 0) {
        notify({WatchdogMessage::Order::alive});
        return;
    }
    if (size < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    Log::warn("Input watchdog: ended", logCategory::mouse);
    ended();
    const auto order = std::exchange(watched_, {});
    if (order != WatchdogMessage{})
        watch(order);
}

void TapWatchdog::ended()
{
    // The notifier may be the caller.
    notifier_->setEnabled(false);
    notifier_.release()->deleteLater();
    socket_.close();
    // It closes its end some time before it has ended.
    waitBeside(std::exchange(process_, -1));
}

} // namespace brindlex
