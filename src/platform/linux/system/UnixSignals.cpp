#include "platform/linux/system/UnixSignals.h"

#include "foundation/FatalError.h"
#include "foundation/FileHandle.h"

#include <QObject>
#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <map>
#include <unistd.h>
#include <utility>

namespace brindlex {
namespace {

/// The writing end of the pipe through which the signal handler reaches the main loop.
volatile std::sig_atomic_t signalPipe = -1;

extern "C" void writeSignal(int signal)
{
    const int error = errno;
    const auto number = static_cast<unsigned char>(signal);
    static_cast<void>(!::write(signalPipe, &number, 1));
    errno = error;
}

} // namespace

class UnixSignals::Implementation {
public:
    explicit Implementation(Handler handler) : handler_(std::move(handler))
    {
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
        action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
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

UnixSignals::UnixSignals(Handler handler)
    : implementation_(std::make_unique<Implementation>(std::move(handler)))
{
}

UnixSignals::~UnixSignals() = default;

} // namespace brindlex
