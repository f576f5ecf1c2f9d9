#include "platform/linux/network/FetcherHttpReading.h"

#include "platform/linux/network/FetchOutcome.h"

#include <QProcess>

#include <cmath>
#include <memory>
#include <utility>

namespace brindlex {
namespace {

using Outcome = Result<std::string, HttpProblem>;

/// How much longer than its time a fetcher may take that is not given the processor.
constexpr Seconds patience = 0.5;

/// One fetcher at work. Its end kills the process if that still runs.
class Fetching : public std::enable_shared_from_this<Fetching> {
public:
    Fetching(MainThread& mainThread, HttpReading::Finished finished)
        : mainThread_(mainThread), finished_(std::move(finished))
    {
    }
    ~Fetching()
    {
        process_.disconnect();
        process_.kill();
        process_.waitForFinished();
    }
    Fetching(const Fetching&) = delete;
    Fetching& operator=(const Fetching&) = delete;

    void start(const std::filesystem::path& fetcher, const QStringList& arguments, Seconds longest)
    {
        QObject::connect(&process_, &QProcess::finished, &process_,
            [this] { report(decodeFetchOutcome(process_.readAllStandardOutput().toStdString())); });
        QObject::connect(
            &process_, &QProcess::errorOccurred, &process_, [this](QProcess::ProcessError error) {
                if (error == QProcess::FailedToStart)
                    report(problem(
                        HttpProblem::Kind::unreachable, process_.errorString().toStdString()));
            });
        lateness_ = mainThread_.after(longest + patience, [this] { giveUp(); });
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QString::fromStdString(fetcher.string()), arguments, QIODevice::ReadOnly);
    }

private:
    static Outcome problem(HttpProblem::Kind kind, std::string detail)
    {
        return fail(HttpProblem{kind, std::move(detail)});
    }

    void giveUp()
    {
        report(problem(HttpProblem::Kind::timedOut, "Timeout was reached"));
        process_.kill();
    }

    /// Posted, as what is called may end this object, and with it the process that notifies.
    void report(Outcome outcome)
    {
        lateness_.reset();
        if (std::exchange(hasReported_, true))
            return;
        mainThread_.post([weak = weak_from_this(), outcome = std::move(outcome)] {
            if (const auto self = weak.lock())
                self->finished_(outcome);
        });
    }

    MainThread& mainThread_;
    const HttpReading::Finished finished_;
    QProcess process_;
    Subscription lateness_;
    bool hasReported_ = false;
};

} // namespace

FetcherHttpReading::FetcherHttpReading(MainThread& mainThread, std::filesystem::path fetcher,
    std::filesystem::path trustedCertificates)
    : mainThread_(mainThread), fetcher_(std::move(fetcher)),
      trusted_(std::move(trustedCertificates))
{
}

Subscription FetcherHttpReading::read(
    const std::string& url, const Limits& limits, Finished finished)
{
    QStringList arguments{QString::fromStdString(url), QString::number(limits.bytes),
        QString::number(std::lround(limits.time * 1'000))};
    if (!trusted_.empty())
        arguments.append(QString::fromStdString(trusted_.string()));
    auto fetching = std::make_shared<Fetching>(mainThread_, std::move(finished));
    fetching->start(fetcher_, arguments, limits.time);
    return Subscription([fetching = std::move(fetching)]() mutable { fetching.reset(); });
}

} // namespace brindlex
