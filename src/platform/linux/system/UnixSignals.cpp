#include "platform/linux/system/UnixSignals.h"

#include "foundation/FatalError.h"
#include "foundation/FileHandle.h"

#include <QObject>
#include <QSocketNotifier>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <map>
#include <unistd.h>
#include <utility>

namespace brindlex {
namespace {

/// The writing end of the pipe through which the signal handler reaches the main loop.
volatile std::sig_atomic_t signalPipe = -1;

/// When the first signal came, and how long after it the next one has its usual effect, in
/// nanoseconds; 0 before the first.
std::atomic<std::int64_t> firstSignal = 0;
std::atomic<std::int64_t> signalPatience = 0;
static_assert(std::atomic<std::int64_t>::is_always_lock_free, "A signal handler may use no lock.");

std::int64_t nanosecondsNow()
{
    timespec now = {};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return std::int64_t{now.tv_sec} * 1'000'000'000 + now.tv_nsec;
}

/// Whether the program has not ended for the whole patience since the first signal.
bool isPatienceOver()
{
    const auto now = nanosecondsNow();
    std::int64_t first = 0;
    if (firstSignal.compare_exchange_strong(first, now))
        return false;
    return now - first >= signalPatience;
}

extern "C" void writeSignal(int signal)
{
    const int error = errno;
    if (isPatienceOver()) {
        // It is delivered when this handler returns.
        ::signal(signal, SIG_DFL);
        ::raise(signal);
    }
    const auto number = static_cast<unsigned char>(signal);
    static_cast<void>(!::write(signalPipe, &number, 1));
    errno = error;
}

} // namespace

class UnixSignals::Implementation {
public:
    Implementation(Handler handler, std::chrono::nanoseconds patience)
        : handler_(std::move(handler))
    {
        firstSignal = 0;
        signalPatience = patience.count();
        int ends[2];
        if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
            fatalError(std::string("No pipe for signals: ") + std::strerror(errno));
        reading_ = FileHandle(ends[0]);
        writing_ = FileHandle(ends[1]);
        signalPipe = ends[1];
        notifier_ = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
        QObject::connect(
            notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { handOn(); });
        for (const int signal : {SIGTERM, SIGINT, SIGHUP})
            turn(signal);
    }

    ~Implementation()
    {
        for (const auto& [signal, action] : before_)
            ::sigaction(signal, &action, nullptr);
        signalPipe = -1;
    }

private:
    void turn(int signal)
    {
        struct sigaction before = {};
        ::sigaction(signal, nullptr, &before);
        if (before.sa_handler == SIG_IGN)
            return;
        struct sigaction action = {};
        action.sa_handler = writeSignal;
        action.sa_flags = SA_RESTART;
        ::sigemptyset(&action.sa_mask);
        if (::sigaction(signal, &action, nullptr) == 0)
            before_.emplace(signal, before);
    }

    void handOn()
    {
        unsigned char number = 0;
        while (::read(reading_.descriptor(), &number, 1) == 1)
            handler_(number);
    }

    Handler handler_;
    FileHandle reading_;
    FileHandle writing_;
    std::unique_ptr<QSocketNotifier> notifier_;
    std::map<int, struct sigaction> before_;
};

UnixSignals::UnixSignals(Handler handler, std::chrono::milliseconds patience)
    : implementation_(std::make_unique<Implementation>(std::move(handler), patience))
{
}

UnixSignals::~UnixSignals() = default;

} // namespace brindlex
