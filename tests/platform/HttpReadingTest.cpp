#include "platform/HttpReading.h"

#include "platform/linux/network/FetcherHttpReading.h"
#include "platform/simulated/SimulatedHttpReading.h"
#include "support/loops/QtLoop.h"
#include "support/loops/SimulatedLoop.h"
#include "support/network/SecureServer.h"
#include "support/processes/RunningProgram.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// Servers of a simulated network.
class SimulatedNetwork {
public:
    using Loop = SimulatedLoop;

    HttpReading& network() { return network_; }
    Loop& loop() { return loop_; }

    std::string content(const std::string& text)
    {
        return add(SimulatedHttpReading::Content{text});
    }
    std::string status(int code) { return add(SimulatedHttpReading::Status{code}); }
    std::string redirect(const std::string& url)
    {
        return add(SimulatedHttpReading::Redirect{url});
    }
    std::string silence() { return add(SimulatedHttpReading::Silence{}); }
    std::string insecureContent(const std::string& text)
    {
        network_.replies["http://example.org/"] = SimulatedHttpReading::Content{text};
        return "http://example.org/";
    }
    std::string loopOfRedirects()
    {
        const std::string url = "https://example.org/loop";
        network_.replies[url] = SimulatedHttpReading::Redirect{url};
        return url;
    }
    std::string nowhere() { return "https://nowhere.example/"; }

private:
    std::string add(SimulatedHttpReading::Reply reply)
    {
        const auto url = "https://example.org/" + std::to_string(network_.replies.size());
        network_.replies[url] = std::move(reply);
        return url;
    }

    Loop loop_;
    SimulatedHttpReading network_{loop_.mainThread()};
};

/// A server on this machine.
class RealNetwork {
public:
    using Loop = QtLoop;

    HttpReading& network() { return network_; }
    Loop& loop() { return loop_; }

    std::string content(const std::string& text) { return server_.content(text); }
    std::string status(int code) { return server_.status(code); }
    std::string redirect(const std::string& url) { return server_.redirect(url); }
    std::string silence() { return server_.silence(); }
    std::string insecureContent(const std::string& text) { return server_.insecureContent(text); }
    std::string loopOfRedirects() { return server_.loop(); }
    std::string nowhere() { return "https://localhost:1/"; }

private:
    Loop loop_;
    SecureServer server_;
    FetcherHttpReading network_{loop_.mainThread(),
        programFile().replace_filename("brindlex-fetch"), server_.certificate()};
};

template <typename Network>
class HttpReadingContract : public testing::Test {
protected:
    using Kind = HttpProblem::Kind;
    using Outcome = Result<std::string, HttpProblem>;

    /// Far longer than any server here takes.
    static constexpr HttpReading::Limits usual{.bytes = 1'000, .time = 60};

    Subscription begin(const std::string& url, const HttpReading::Limits& limits)
    {
        return network.network().read(
            url, limits, [this](const Outcome& outcome) { outcomes.push_back(outcome); });
    }

    Outcome read(const std::string& url, const HttpReading::Limits& limits = usual)
    {
        outcomes.clear();
        const auto reading = begin(url, limits);
        EXPECT_TRUE(outcomes.empty()) << "reported from inside the call";
        EXPECT_TRUE(network.loop().runUntil([&] { return !outcomes.empty(); }));
        return outcomes.empty() ? fail(HttpProblem{Kind::unreachable, "no report"})
                                : outcomes.front();
    }

    Kind problemOf(const std::string& url, const HttpReading::Limits& limits = usual)
    {
        const auto outcome = read(url, limits);
        EXPECT_FALSE(outcome) << *outcome;
        return outcome ? Kind{} : outcome.error().kind;
    }

    /// An address that leads to the content by so many redirects.
    std::string behind(int redirects, const std::string& text)
    {
        auto url = network.content(text);
        for (int redirect = 0; redirect < redirects; ++redirect)
            url = network.redirect(url);
        return url;
    }

    Network network;
    std::vector<Outcome> outcomes;
};

using Networks = testing::Types<SimulatedNetwork, RealNetwork>;
TYPED_TEST_SUITE(HttpReadingContract, Networks);

TYPED_TEST(HttpReadingContract, readsADocumentToTheByte)
{
    const std::string bytes("text ü\n\0\xFF\r\n", 12);
    EXPECT_EQ(*this->read(this->network.content(bytes)), bytes);
    EXPECT_EQ(*this->read(this->network.content("")), "");
}

TYPED_TEST(HttpReadingContract, readsAsManyBytesAsItMay)
{
    const HttpReading::Limits limits{.bytes = 10, .time = 60};
    EXPECT_EQ(*this->read(this->network.content("0123456789"), limits), "0123456789");
    EXPECT_EQ(
        this->problemOf(this->network.content("0123456789a"), limits), HttpProblem::Kind::tooLarge);
}

TYPED_TEST(HttpReadingContract, reportsAStatusThatIsNoSuccess)
{
    for (const int status : {400, 404, 410, 500, 503}) {
        const auto outcome = this->read(this->network.status(status));
        ASSERT_FALSE(outcome);
        EXPECT_EQ(
            outcome.error(), (HttpProblem{HttpProblem::Kind::status, std::to_string(status)}));
    }
}

TYPED_TEST(HttpReadingContract, followsFiveRedirects)
{
    EXPECT_EQ(*this->read(this->behind(1, "one")), "one");
    EXPECT_EQ(*this->read(this->behind(5, "five")), "five");
    EXPECT_EQ(this->problemOf(this->behind(6, "six")), HttpProblem::Kind::unreachable);
}

TYPED_TEST(HttpReadingContract, runsInNoCircle)
{
    EXPECT_EQ(this->problemOf(this->network.loopOfRedirects()), HttpProblem::Kind::unreachable);
}

TYPED_TEST(HttpReadingContract, goesNowhereWithoutSecurity)
{
    const auto insecure = this->network.insecureContent("text");
    EXPECT_EQ(this->problemOf(insecure), HttpProblem::Kind::insecure);
    EXPECT_EQ(this->problemOf(this->network.redirect(insecure)), HttpProblem::Kind::insecure);
    EXPECT_EQ(this->problemOf("file:///etc/hostname"), HttpProblem::Kind::insecure);
}

TYPED_TEST(HttpReadingContract, reportsThatThereIsNoServer)
{
    EXPECT_EQ(this->problemOf(this->network.nowhere()), HttpProblem::Kind::unreachable);
}

TYPED_TEST(HttpReadingContract, waitsNoLongerThanItMay)
{
    EXPECT_EQ(this->problemOf(this->network.silence(), {.bytes = 10, .time = 0.3}),
        HttpProblem::Kind::timedOut);
}

TYPED_TEST(HttpReadingContract, reportsNothingOnceItIsEnded)
{
    auto ended = this->begin(this->network.content("ended"), this->usual);
    ended.reset();

    EXPECT_EQ(*this->read(this->network.content("another")), "another");
    EXPECT_EQ(this->outcomes.size(), 1U);
}

TYPED_TEST(HttpReadingContract, canBeEndedByWhoIsReportedTo)
{
    Subscription reading;
    bool isReported = false;
    reading = this->network.network().read(
        this->network.content("text"), this->usual, [&](const Result<std::string, HttpProblem>&) {
            reading.reset();
            isReported = true;
        });

    EXPECT_TRUE(this->network.loop().runUntil([&] { return isReported; }));
}

TYPED_TEST(HttpReadingContract, readsSeveralAtOnce)
{
    const auto one = this->begin(this->network.content("one"), this->usual);
    const auto two = this->begin(this->network.content("two"), this->usual);

    EXPECT_TRUE(this->network.loop().runUntil([&] { return this->outcomes.size() == 2; }));
    std::vector<std::string> texts{*this->outcomes.at(0), *this->outcomes.at(1)};
    std::sort(texts.begin(), texts.end());
    EXPECT_EQ(texts, (std::vector<std::string>{"one", "two"}));
}

} // namespace
} // namespace brindlex
