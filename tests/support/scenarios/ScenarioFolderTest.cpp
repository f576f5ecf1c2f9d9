#include "support/scenarios/ScenarioFolder.h"

#include "support/scenarios/CounterScenario.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace brindlex {
namespace {

class ScenarioFolder : public testing::Test {
protected:
    std::filesystem::path file(const std::string& name, const std::string& content) const
    {
        write(folder_.path() / name, content);
        return folder_.path() / name;
    }

    const std::filesystem::path& folder() const { return folder_.path(); }

private:
    TemporaryFolder folder_;
};

using Files = std::vector<std::filesystem::path>;

TEST_F(ScenarioFolder, listsItsTextsInOrder)
{
    const auto second = file("b.txt", "");
    const auto first = file("a.txt", "");
    file("b.txt~", "");

    EXPECT_EQ(scenarioFiles(folder()), (Files{first, second}));
}

TEST_F(ScenarioFolder, leavesOutWhatAPlayerDoesNotPlay)
{
    const auto excluded = file("a.txt", "not on desktop: no screen\nlimit 3\n0ms wait\n");
    const auto usual = file("b.txt", "limit 3\n0ms wait\n");

    EXPECT_EQ(scenarioFiles(folder(), "desktop"), Files{usual});
    EXPECT_EQ(scenarioFiles(folder(), "memory"), (Files{excluded, usual}));
}

TEST_F(ScenarioFolder, leavesNoMalformedFileUnnoticed)
{
    const auto malformed = file("a.txt", "not on desktop: no screen\n1s wait\n");
    EXPECT_EQ(scenarioFiles(folder(), "desktop"), Files{malformed});
}

TEST_F(ScenarioFolder, namesTestsAfterTheirFiles)
{
    EXPECT_EQ(scenarioTestName({"/x/seven-of-10_are.few.txt", 0}), "seven_of_10_are_few");
}

TEST_F(ScenarioFolder, belongsToEachSubsystemThatHasScenarios)
{
    EXPECT_EQ(scenarioFolders(), (Files{scenarioFolder("inputmethod"), scenarioFolder("mouse")}));
}

TEST_F(ScenarioFolder, failsTheTestOfAFileThatGoesOtherwise)
{
    static CounterExecutor executor;
    static std::filesystem::path path;
    path = file("a.txt", "limit 3\n\n0ms  add 2 -> count 1\n");
    EXPECT_NONFATAL_FAILURE(expectGoesAsWritten(path, executor), "the counter stands at 2");
    path = file("a.txt", "limit 3\n\n0ms add 2 -> count 4\n");
    EXPECT_NONFATAL_FAILURE(expectGoesAsWritten(path, executor), "+0ms  add 2");
    path = file("a.txt", "limit 3\n\n0ms  sing -> nothing\n");
    EXPECT_FATAL_FAILURE(expectGoesAsWritten(path, executor), "a.txt:3: \"sing\" is unknown");
}

TEST_F(ScenarioFolder, passesTheTestOfAFileThatGoesAsWritten)
{
    CounterExecutor executor;
    expectGoesAsWritten(file("a.txt", "limit 3\n\n0ms  add 2 -> count 2\n"), executor);
}

} // namespace
} // namespace brindlex
