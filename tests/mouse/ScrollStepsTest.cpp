#include "mouse/ScrollSteps.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace brindlex {
namespace {

using StepTexts = std::vector<std::string>;

TEST(ScrollSteps, showAValueBetweenTwoAtTheNearer)
{
    EXPECT_EQ(accelerationSteps[nearestStep(accelerationSteps, 0.75)], 0.7);
    EXPECT_EQ(accelerationSteps[nearestStep(accelerationSteps, 2.0)], 1.0);
    EXPECT_EQ(speedSteps[nearestStep(speedSteps, 0.625)], 0.5) << "Midway: the earlier step";
    EXPECT_EQ(durationSteps[nearestStep(durationSteps, -1)], 0.05);
    for (std::size_t index = 0; index < durationSteps.size(); ++index)
        EXPECT_EQ(nearestStep(durationSteps, durationSteps.at(index)), index);
}

TEST(ScrollSteps, beginWithTheFirstWhereNothingIsNear)
{
    EXPECT_EQ(nearestStep({}, 3), 0U);
    EXPECT_EQ(nearestStep(std::vector{7.0}, 3), 0U);
    EXPECT_EQ(nearestStep(speedSteps, std::numeric_limits<double>::quiet_NaN()), 0U);
    EXPECT_EQ(nearestStep(speedSteps, std::numeric_limits<double>::infinity()), 0U);
}

TEST(ScrollSteps, haveTheirTexts)
{
    StepTexts durations;
    StepTexts speeds;
    StepTexts accelerations;
    for (std::size_t index = 0; index < 10; ++index) {
        durations.push_back(durationText(durationSteps.at(index)));
        speeds.push_back(speedText(speedSteps.at(index)));
        accelerations.push_back(accelerationText(accelerationSteps.at(index)));
    }
    EXPECT_EQ(durations,
        (StepTexts{"50 ms", "80 ms", "100 ms", "150 ms", "180 ms", "200 ms", "250 ms", "300 ms",
            "350 ms", "400 ms"}));
    EXPECT_EQ(speeds,
        (StepTexts{"0.50x", "0.75x", "1.00x", "1.25x", "1.50x", "1.75x", "2.00x", "2.25x", "2.50x",
            "3.00x"}));
    EXPECT_EQ(accelerations,
        (StepTexts{"0%", "10%", "20%", "30%", "40%", "50%", "60%", "70%", "85%", "100%"}));
}

} // namespace
} // namespace brindlex
