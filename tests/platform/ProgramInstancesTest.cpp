#include "platform/ProgramInstances.h"

#include "platform/simulated/SimulatedProgramInstances.h"
#include "support/basics/Eventually.h"
#include "support/basics/TemporaryFolder.h"
#include "support/bus/PrivateBus.h"
#include "support/processes/ChildProcess.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <map>
#include <memory>
#include <sstream>

namespace brindlex {
namespace {

using Process = ProgramInstances::ProcessIdentifier;
using Processes = std::vector<Process>;

const std::string program = "com.brindlex.Brindlex";

/// What a process finds out when it starts.
struct Started {
    Process process{};
    Processes running{};
};

class SimulatedPlace {
public:
    Started start(const std::string& bundleID = program, const std::string& asked = program)
    {
        auto instances = std::make_unique<SimulatedProgramInstances>(session_, bundleID);
        const Started started{instances->current(), instances->running(asked)};
        processes_[started.process] = std::move(instances);
        return started;
    }

    std::vector<Started> startAtOnce(std::size_t count)
    {
        std::vector<std::unique_ptr<SimulatedProgramInstances>> all;
        for (std::size_t number = 0; number < count; ++number)
            all.push_back(std::make_unique<SimulatedProgramInstances>(session_, program));
        std::vector<Started> started;
        for (auto& instances : all) {
            started.push_back({instances->current(), instances->running(program)});
            processes_[started.back().process] = std::move(instances);
        }
        return started;
    }

    void kill(Process process) { processes_.erase(process); }

private:
    SimulatedSession session_;
    std::map<Process, std::unique_ptr<SimulatedProgramInstances>> processes_;
};

class BusPlace {
public:
    Started start(const std::string& bundleID = program, const std::string& asked = program)
    {
        return reportOf(begin(bundleID, asked));
    }

    std::vector<Started> startAtOnce(std::size_t count)
    {
        std::vector<ChildProcess*> children;
        for (std::size_t number = 0; number < count; ++number)
            children.push_back(&begin(program, program));
        std::vector<Started> started;
        for (const auto child : children)
            started.push_back(reportOf(*child));
        return started;
    }

    void kill(Process process)
    {
        auto& child = *children_.at(process);
        child.signal(SIGKILL);
        child.waitForEnd(usualDeadline);
        children_.erase(process);
    }

private:
    ChildProcess& begin(const std::string& bundleID, const std::string& asked)
    {
        const auto output = folder_.path() / std::to_string(++started_);
        auto child = std::make_unique<ChildProcess>(ChildProcess::Start{
            .command = {PLATFORM_PROCESS, "instances", bus_.address(), bundleID, asked},
            .output = output,
        });
        return *(children_[Process{child->id()}] = std::move(child));
    }

    static Started reportOf(const ChildProcess& child)
    {
        constexpr std::chrono::seconds deadline(60);
        EXPECT_TRUE(eventually([&] { return child.output().ends_with('\n'); }, deadline));
        Started started{Process{child.id()}, {}};
        std::istringstream words(child.output());
        for (std::int64_t process = 0; words >> process;)
            started.running.push_back(Process{process});
        return started;
    }

    TemporaryFolder folder_;
    PrivateBus bus_;
    std::map<Process, std::unique_ptr<ChildProcess>> children_;
    int started_ = 0;
};

template <typename Place>
class ProgramInstancesContract : public testing::Test {
protected:
    Place place;
};

using Places = testing::Types<SimulatedPlace, BusPlace>;
TYPED_TEST_SUITE(ProgramInstancesContract, Places);

TYPED_TEST(ProgramInstancesContract, listForAProcessThoseThatWereStartedBefore)
{
    const auto first = this->place.start();
    EXPECT_EQ(first.running, Processes{first.process});
    const auto second = this->place.start();
    EXPECT_EQ(second.running, (Processes{first.process, second.process}));
    const auto third = this->place.start();
    EXPECT_EQ(third.running, (Processes{first.process, second.process, third.process}));
}

TYPED_TEST(ProgramInstancesContract, forgetAProcessThatWasKilled)
{
    const auto first = this->place.start();
    const auto second = this->place.start();
    this->place.kill(first.process);
    const auto third = this->place.start();
    EXPECT_EQ(third.running, (Processes{second.process, third.process}));
    this->place.kill(second.process);
    this->place.kill(third.process);
    const auto fourth = this->place.start();
    EXPECT_EQ(fourth.running, Processes{fourth.process});
}

TYPED_TEST(ProgramInstancesContract, putProcessesThatStartAtTheSameMomentIntoOneOrder)
{
    auto started = this->place.startAtOnce(5);
    std::sort(started.begin(), started.end(), [](const Started& one, const Started& other) {
        return one.running.size() < other.running.size();
    });
    Processes expected;
    for (const auto& each : started) {
        expected.push_back(each.process);
        EXPECT_EQ(each.running, expected);
    }
}

TYPED_TEST(ProgramInstancesContract, keepProgramsApart)
{
    const auto another = this->place.start("org.example.Another", "org.example.Another");
    EXPECT_EQ(another.running, Processes{another.process});
    const auto first = this->place.start();
    EXPECT_EQ(first.running, Processes{first.process});
    const auto asking = this->place.start(program, "org.example.Another");
    EXPECT_EQ(asking.running, Processes{another.process});
    const auto nobody = this->place.start(program, "org.example.Nobody");
    EXPECT_EQ(nobody.running, Processes{});
}

} // namespace
} // namespace brindlex
