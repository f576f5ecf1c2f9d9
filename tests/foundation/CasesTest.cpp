#include "foundation/Cases.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace brindlex {
namespace {

struct Shape {
    struct Circle {
        double radius{};
        bool operator==(const Circle&) const = default;
    };
    struct Square {
        double side{};
        bool operator==(const Square&) const = default;
    };
    struct Nothing {
        bool operator==(const Nothing&) const = default;
    };
    using Any = Cases<Circle, Square, Nothing>;
};

std::string described(const Shape::Any& shape)
{
    return match(
        shape,
        [](const Shape::Circle& circle) { return "circle " + std::to_string(circle.radius); },
        [](const Shape::Square& square) { return "square " + std::to_string(square.side); },
        [](const Shape::Nothing&) { return std::string("nothing"); });
}

TEST(Cases, areTakenApartByTheArmOfTheAlternative)
{
    EXPECT_EQ(described(Shape::Circle{1}), "circle 1.000000");
    EXPECT_EQ(described(Shape::Square{2}), "square 2.000000");
    EXPECT_EQ(described(Shape::Nothing{}), "nothing");
}

TEST(Cases, compareAlternativeAndPayload)
{
    EXPECT_EQ(Shape::Any(Shape::Circle{1}), Shape::Any(Shape::Circle{1}));
    EXPECT_NE(Shape::Any(Shape::Circle{1}), Shape::Any(Shape::Circle{2}));
    EXPECT_NE(Shape::Any(Shape::Circle{1}), Shape::Any(Shape::Square{1}));
}

TEST(Cases, mayBeChangedInAnArm)
{
    Shape::Any shape = Shape::Circle{1};
    match(
        shape, [](Shape::Circle& circle) { circle.radius = 3; }, [](Shape::Square&) {},
        [](Shape::Nothing&) {});

    EXPECT_EQ(shape, Shape::Any(Shape::Circle{3}));
}

TEST(Cases, giveTheirPayloadAwayWhenTheyAreMoved)
{
    Cases<std::unique_ptr<int>, int> choice = std::make_unique<int>(7);
    const auto taken = match(
        std::move(choice), [](std::unique_ptr<int>&& pointer) { return std::move(pointer); },
        [](int&&) { return std::unique_ptr<int>(); });

    EXPECT_EQ(*taken, 7);
}

TEST(Cases, areTakenApartByArmsThatReturnAReference)
{
    Cases<int, double> choice = 5;
    int zero = 0;
    int& result = match(
        choice, [](int& value) -> int& { return value; }, [&](double&) -> int& { return zero; });
    result = 6;

    EXPECT_EQ(std::get<int>(choice), 6);
}

} // namespace
} // namespace brindlex
