#include "platform/ProgramRelaunching.h"

#include "platform/linux/system/PosixProgramRelaunching.h"
#include "platform/simulated/SimulatedProgramRelaunching.h"
#include "support/basics/Eventually.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class SimulatedProgramFile {
public:
    ProgramRelaunching& relaunching() { return relaunching_; }
    void remove() { relaunching_.refusal = "No such file or directory"; }
    bool hasInstances(int count) { return relaunching_.instances == count; }

private:
    SimulatedProgramRelaunching relaunching_;
};

/// A program that leaves a line for each of its instances.
class RealProgramFile {
public:
    RealProgramFile()
    {
        write(file(), "#!/bin/sh\necho >>'" + notes().string() + "'\n");
        std::filesystem::permissions(file(), std::filesystem::perms::owner_all);
    }

    ProgramRelaunching& relaunching() { return relaunching_; }
    void remove() { std::filesystem::remove(file()); }
    bool hasInstances(int count)
    {
        const std::string lines(static_cast<std::size_t>(count), '\n');
        return eventually([&] { return contentOf(notes()) == lines; });
    }

private:
    std::filesystem::path file() const { return folder_.path() / "program ü"; }
    std::filesystem::path notes() const { return folder_.path() / "notes"; }

    TemporaryFolder folder_;
    PosixProgramRelaunching relaunching_{file(), [] { return std::string(); }};
};

template <typename Program>
class ProgramRelaunchingContract : public testing::Test {
protected:
    using Outcome = Result<Done, std::string>;

    ProgramRelaunching::Finished note()
    {
        return [this](const Outcome& outcome) { outcomes.push_back(outcome); };
    }

    Program program;
    std::vector<Outcome> outcomes;
};

using Programs = testing::Types<SimulatedProgramFile, RealProgramFile>;
TYPED_TEST_SUITE(ProgramRelaunchingContract, Programs);

TYPED_TEST(ProgramRelaunchingContract, startsANewInstanceEachTime)
{
    for (int instance = 1; instance <= 2; ++instance) {
        this->program.relaunching().relaunch(this->note());
        EXPECT_TRUE(this->program.hasInstances(instance));
        ASSERT_EQ(this->outcomes.size(), static_cast<std::size_t>(instance));
        EXPECT_TRUE(this->outcomes.back());
    }
}

TYPED_TEST(ProgramRelaunchingContract, saysWhyThereIsNoNewInstance)
{
    this->program.remove();

    this->program.relaunching().relaunch(this->note());

    ASSERT_EQ(this->outcomes.size(), 1U);
    ASSERT_FALSE(this->outcomes.front());
    EXPECT_EQ(this->outcomes.front().error(), "No such file or directory");
    EXPECT_TRUE(this->program.hasInstances(0));
}

} // namespace
} // namespace brindlex
