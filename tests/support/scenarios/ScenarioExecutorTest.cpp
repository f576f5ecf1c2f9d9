#include "support/scenarios/ScenarioExecutor.h"

#include "support/scenarios/CounterScenario.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

std::string playedCounter(const std::string& text)
{
    const auto scenario = parseScenario<CounterVerbs>("a.txt", text);
    if (!scenario)
        return scenario.error();
    CounterExecutor executor;
    return play(*scenario, executor);
}

const std::string story = "# A counter.\n"
                          "limit 3\n"
                          "\n"
                          "0ms     add 2 -> count 2\n"
                          "10ms    wait  -> nothing\n"
                          "# The limit is reached.\n"
                          "1500ms  add 1 -> count 3, ring\n";

TEST(ScenarioExecutor, givesTheTextOfAScenarioThatGoesAsItIsWritten)
{
    EXPECT_EQ(playedCounter(story), story);
}

TEST(ScenarioExecutor, givesTheRealEffectsWhateverIsWritten)
{
    EXPECT_EQ(playedCounter("# A counter.\nlimit 3\n0ms add 2 -> nothing\n10ms wait -> ring\n"
                            "# The limit is reached.\n1500ms add 1\n"),
        story);
}

} // namespace
} // namespace brindlex
