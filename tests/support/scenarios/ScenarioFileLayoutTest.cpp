#include "support/scenarios/ScenarioFile.h"

#include "support/scenarios/ScenarioFolder.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

std::string laidOut(const std::string& text)
{
    const auto file = parseScenarioFile("a.txt", text);
    return file ? file->text() : file.error();
}

TEST(ScenarioFileLayout, alignsTheWordsAndTheArrows)
{
    EXPECT_EQ(laidOut("0ms a   b->x,  y\n1500ms longer words -> \tnothing  \n1501ms c\n"),
        "0ms     a b          -> x,  y\n"
        "1500ms  longer words -> nothing\n"
        "1501ms  c\n");
}

TEST(ScenarioFileLayout, hasOneEmptyLineBeforeTheSteps)
{
    EXPECT_EQ(laidOut("\n# A\n\n  limit   3\n0ms  a -> x\n\n# B\n1ms  b -> y"),
        "# A\nlimit 3\n\n0ms  a -> x\n# B\n1ms  b -> y\n");
    EXPECT_EQ(laidOut("\n0ms  a -> x\n"), "0ms  a -> x\n");
}

TEST(ScenarioFileLayout, writesExclusionsInOneForm)
{
    EXPECT_EQ(laidOut("not on  desktop :  no  screen\n0ms  a -> x\n"),
        "not on desktop: no  screen\n\n0ms  a -> x\n");
}

TEST(ScenarioFileLayout, endsTheWordsAtTheFirstArrow)
{
    EXPECT_EQ(laidOut("0ms  a -> b -> c\n"), "0ms  a -> b -> c\n");
    EXPECT_EQ(laidOut("0ms  a ->\n"), "0ms  a\n");
}

TEST(ScenarioFileLayout, isThatOfEveryScenario)
{
    std::size_t files = 0;
    for (const auto& folder : scenarioFolders()) {
        for (const auto& path : scenarioFiles(folder)) {
            const auto file = parseScenarioFile(path.string(), contentOf(path));
            ASSERT_TRUE(file) << file.error();
            EXPECT_EQ(file->text(), contentOf(path)) << path;
            ++files;
        }
    }
    EXPECT_GE(files, 107u);
}

} // namespace
} // namespace brindlex
