#include "mouse/MouseScrollAccelerationCalculator.h"

#include <gtest/gtest.h>

#include <cmath>

namespace brindlex {
namespace {

using Calculator = MouseScrollAccelerationCalculator;

TEST(MouseScrollAccelerationCalculator, isClearedWithoutStrength)
{
    for (const double strength : {0.0, -0.0, -1.0, std::nan("")}) {
        Calculator calculator{500, 3};
        EXPECT_EQ(calculator.factor(5, 0, 5, strength, 500.01), 1.0);
        EXPECT_EQ(calculator, Calculator{});
    }
}

TEST(MouseScrollAccelerationCalculator, takesAFirstNotchOfOneLineAsItIs)
{
    Calculator calculator;

    EXPECT_EQ(calculator.factor(1, 0, 1, 1.0, 500), 1.0);
    EXPECT_EQ(calculator, (Calculator{500, 0}));
}

TEST(MouseScrollAccelerationCalculator, takesNoNotchBeforeForOneLongAgo)
{
    Calculator atTheStart;
    EXPECT_EQ(atTheStart.factor(-1, 0, -1, 1.0, 0.02), 1.0);
    EXPECT_EQ(atTheStart, (Calculator{0.02, 0}));

    Calculator withMomentum{0, 3};
    EXPECT_EQ(withMomentum.factor(-1, 0, -1, 1.0, 500), 1.0);
    EXPECT_EQ(withMomentum, (Calculator{500, 0}));

    // One second after the start there was a notch: time term 0.75.
    EXPECT_NEAR((Calculator{1, 0}).factor(-1, 0, -1, 1.0, 1.02), 1.625421442418055603, 1e-12);
}

TEST(MouseScrollAccelerationCalculator, gainsByNotchesInQuickSuccession)
{
    Calculator calculator;
    calculator.factor(-1, 0, -1, 1.0, 500);

    // Time term 0.75: 1 + 2 (1 - exp(-0.375)).
    EXPECT_NEAR(calculator.factor(-1, 0, -1, 1.0, 500.02), 1.625421442418055603, 1e-12);
    EXPECT_NEAR(calculator.accelerationMomentum, 0.75, 1e-12);
    // Momentum 0.75 exp(-0.02 / 0.18) + 0.75.
    EXPECT_NEAR(calculator.factor(-1, 0, -1, 1.0, 500.04), 2.017266754334705907, 1e-12);
    EXPECT_NEAR(calculator.accelerationMomentum, 1.421129487610777331, 1e-12);
}

TEST(MouseScrollAccelerationCalculator, gainsFasterUpward)
{
    Calculator calculator;
    calculator.factor(1, 0, 1, 1.0, 500);

    // Momentum 1.6 times 0.75: 1 + 2 (1 - exp(-0.6)).
    EXPECT_NEAR(calculator.factor(1, 0, 1, 1.0, 500.02), 1.902376727811947135, 1e-12);
}

TEST(MouseScrollAccelerationCalculator, looksAtWhatTheWheelSentForTheUpwardWeight)
{
    Calculator inverted;
    inverted.factor(-1, 0, 1, 1.0, 500);
    EXPECT_NEAR(inverted.factor(-1, 0, 1, 1.0, 500.02), 1.902376727811947135, 1e-12);

    Calculator sideways;
    sideways.factor(0, 1, 1, 1.0, 500);
    EXPECT_NEAR(sideways.factor(0, 1, 1, 1.0, 500.02), 1.902376727811947135, 1e-12);

    Calculator horizontal;
    horizontal.factor(0, 1, 0, 1.0, 500);
    EXPECT_NEAR(horizontal.factor(0, 1, 0, 1.0, 500.02), 1.625421442418055603, 1e-12);
}

TEST(MouseScrollAccelerationCalculator, gainsByTheLargerOfTheTwoSteps)
{
    // Size term 0.7: 1 + 2 (1 - exp(-0.35)).
    EXPECT_NEAR(Calculator().factor(-3, 0, -3, 1.0, 500), 1.590623820562573131, 1e-12);
    EXPECT_NEAR(Calculator().factor(1, -3, -1, 1.0, 500), 1.590623820562573131, 1e-12);
    EXPECT_EQ(Calculator().factor(0, 0, 0, 1.0, 500), 1.0);
}

TEST(MouseScrollAccelerationCalculator, losesMomentumWithTime)
{
    Calculator calculator;
    calculator.factor(-1, 0, -1, 1.0, 500);
    calculator.factor(-1, 0, -1, 1.0, 500.02);

    // Momentum 0.75 exp(-0.5 / 0.18), no time term.
    EXPECT_NEAR(calculator.factor(-1, 0, -1, 1.0, 500.52), 1.046092948726924438, 1e-12);
}

TEST(MouseScrollAccelerationCalculator, hasNoTimeTermFromEightHundredthsOn)
{
    Calculator calculator{0.08, 0};
    EXPECT_EQ(calculator.factor(-1, 0, -1, 1.0, 0.16), 1.0);
    Calculator sooner{0.08, 0};
    EXPECT_GT(sooner.factor(-1, 0, -1, 1.0, 0.1599), 1.0);
}

TEST(MouseScrollAccelerationCalculator, capsTheStrengthAtOne)
{
    Calculator one;
    Calculator two;
    for (const double time : {500.0, 500.01, 500.03})
        EXPECT_EQ(one.factor(-2, 0, -2, 1.0, time), two.factor(-2, 0, -2, 2.0, time));
}

TEST(MouseScrollAccelerationCalculator, weighsByItsStrength)
{
    Calculator calculator;
    calculator.factor(-1, 0, -1, 0.5, 500);

    EXPECT_NEAR(calculator.factor(-1, 0, -1, 0.5, 500.02), 1.312710721209027801, 1e-12);
}

TEST(MouseScrollAccelerationCalculator, staysBelowThreeInTheFastestSpin)
{
    Calculator calculator;
    double factor = 0;
    for (int notch = 0; notch < 1000; ++notch)
        factor = calculator.factor(30, 0, 30, 1.0, 500 + notch * 0.001);

    EXPECT_GT(factor, 2.999);
    EXPECT_LE(factor, 3.0);
}

} // namespace
} // namespace brindlex
