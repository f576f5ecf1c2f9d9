#include "inputmethod/SmartInputMethodOptions.h"

#include "foundation/JsonCoding.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

template <typename Enumeration>
std::string allStoredValues()
{
    auto list = Json::array();
    for (const auto value : allCases<Enumeration>())
        list.push_back(toJson(value));
    return jsonText(list);
}

TEST(SmartInputMethodOptions, areStoredByTheirValuesInOrder)
{
    EXPECT_EQ(allStoredValues<SmartInputMethodPriority>(),
        R"(["afterManualRules","beforeManualAppRules","highest"])");
    EXPECT_EQ(allStoredValues<SmartInputMethodThresholdRatio>(), "[70,80,90]");
    EXPECT_EQ(allStoredValues<SmartInputMethodWindowSize>(), "[10,20,30,50]");
    EXPECT_EQ(allStoredValues<SmartInputMethodAppLimit>(),
        R"(["unlimited","top10","top20","top30","top50"])");
}

template <typename Enumeration>
void expectToReadItself()
{
    for (const auto value : allCases<Enumeration>())
        EXPECT_EQ(fromJson<Enumeration>(toJson(value)), value);
}

TEST(SmartInputMethodOptions, readWhatTheyWrote)
{
    expectToReadItself<SmartInputMethodPriority>();
    expectToReadItself<SmartInputMethodThresholdRatio>();
    expectToReadItself<SmartInputMethodWindowSize>();
    expectToReadItself<SmartInputMethodAppLimit>();
}

TEST(SmartInputMethodOptions, areUnreadableFromAnyOtherValue)
{
    for (const Json& value : {Json("Highest"), Json(""), Json(0), Json(true), Json::array()})
        EXPECT_FALSE(fromJson<SmartInputMethodPriority>(value)) << value;
    for (const Json& value : {Json(0), Json(75), Json(80.5), Json("80"), Json(-70), Json(1e300)})
        EXPECT_FALSE(fromJson<SmartInputMethodThresholdRatio>(value)) << value;
    for (const Json& value : {Json(0), Json(40), Json(10.5), Json("10"), Json(4294967306)})
        EXPECT_FALSE(fromJson<SmartInputMethodWindowSize>(value)) << value;
    for (const Json& value : {Json("top40"), Json(10), Json("Unlimited"), Json::object()})
        EXPECT_FALSE(fromJson<SmartInputMethodAppLimit>(value)) << value;
}

TEST(SmartInputMethodOptions, limitApplicationsByTheNumberInTheName)
{
    EXPECT_EQ(applicationCount(SmartInputMethodAppLimit::unlimited), std::nullopt);
    EXPECT_EQ(applicationCount(SmartInputMethodAppLimit::top10), 10u);
    EXPECT_EQ(applicationCount(SmartInputMethodAppLimit::top20), 20u);
    EXPECT_EQ(applicationCount(SmartInputMethodAppLimit::top30), 30u);
    EXPECT_EQ(applicationCount(SmartInputMethodAppLimit::top50), 50u);
}

} // namespace
} // namespace brindlex
