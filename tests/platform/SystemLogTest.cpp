#include "platform/SystemLog.h"
#include "platform/linux/system/JournalSystemLog.h"
#include "platform/simulated/SimulatedSystemLog.h"
#include "support/basics/DatagramSocket.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <vector>

namespace brindlex {
namespace {

using Messages = std::vector<std::string>;

/// The simulated log, and what it was given.
class SimulatedProvider {
public:
    SystemLog& log() { return log_; }
    Messages messages() const
    {
        Messages messages;
        for (const auto& entry : log_.entries())
            messages.push_back(entry.message);
        return messages;
    }

private:
    SimulatedSystemLog log_;
};

/// The journal's log on a socket of our own, and what arrives there.
class JournalProvider {
public:
    SystemLog& log() { return log_; }
    Messages messages()
    {
        Messages messages;
        while (const auto datagram = socket_.receive())
            messages.push_back(journalFields(*datagram).at("MESSAGE"));
        return messages;
    }

private:
    TemporaryFolder folder_;
    DatagramSocket socket_{folder_.path() / "journal"};
    JournalSystemLog log_{folder_.path() / "journal", folder_.path() / "syslog"};
};

template <typename Provider>
class SystemLogContract : public testing::Test {
protected:
    void write(const std::string& message)
    {
        provider.log().write(SystemLogType::info, "com.brindlex.Brindlex.app", "ui", message);
    }

    Provider provider;
};

using Providers = testing::Types<SimulatedProvider, JournalProvider>;
TYPED_TEST_SUITE(SystemLogContract, Providers);

TYPED_TEST(SystemLogContract, keepsMessagesInTheirOrder)
{
    this->write("one");
    this->write("two");
    this->write("three");

    EXPECT_EQ(this->provider.messages(), (Messages{"one", "two", "three"}));
}

TYPED_TEST(SystemLogContract, takesAnyMessage)
{
    const Messages hostile{"", "\n", "two\nlines", "MESSAGE=x\nPRIORITY=0", "%s%n",
        std::string("a\0b", 3), "\xFF\xFE", "漢字 🎛", std::string(10'000, 'x')};
    for (const auto& message : hostile)
        this->write(message);

    EXPECT_EQ(this->provider.messages(), hostile);
}

} // namespace
} // namespace brindlex
