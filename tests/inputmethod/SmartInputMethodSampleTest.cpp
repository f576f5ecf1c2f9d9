#include "inputmethod/SmartInputMethodSample.h"

#include "foundation/JsonCoding.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

const std::string sampleID = "0E7A5C1E-3B52-4F64-9D1C-8A2B7D9F4E10";
const SmartInputMethodSample sample{*Uuid::fromText(sampleID), "german", Date{800'000'000.25}};
const std::string sampleText
    = R"({"id":")" + sampleID + R"(","inputSourceID":"german","recordedAt":800000000.25})";

TEST(SmartInputMethodSample, isWrittenWithTheNamesOfItsFields)
{
    EXPECT_EQ(jsonText(toJson(sample)), sampleText);
}

TEST(SmartInputMethodSample, readsWhatItWrote)
{
    EXPECT_EQ(fromJson<SmartInputMethodSample>(*parseJson(sampleText)), sample);
}

TEST(SmartInputMethodSample, getsANewIdentityForAMissingOne)
{
    for (const char* text : {R"({"inputSourceID":"german","recordedAt":1})",
             R"({"id":null,"inputSourceID":"german","recordedAt":1})"}) {
        const auto one = fromJson<SmartInputMethodSample>(*parseJson(text));
        const auto two = fromJson<SmartInputMethodSample>(*parseJson(text));
        ASSERT_TRUE(one && two);
        EXPECT_NE(one->id, Uuid{});
        EXPECT_NE(one->id, two->id);
        EXPECT_EQ(one->inputSourceID, "german");
        EXPECT_EQ(one->recordedAt, Date{1});
    }
}

TEST(SmartInputMethodSample, isOfTheEmptySourceWithoutOne)
{
    const auto read = fromJson<SmartInputMethodSample>(
        *parseJson(R"({"id":")" + sampleID + R"(","recordedAt":1})"));
    EXPECT_EQ(read, (SmartInputMethodSample{sample.id, "", Date{1}}));
}

TEST(SmartInputMethodSample, isOfTheTimeOfReadingWithoutADate)
{
    const auto read = fromJson<SmartInputMethodSample>(*parseJson("{}"));
    ASSERT_TRUE(read);
    EXPECT_GT(iso8601(read->recordedAt), "2025");
    EXPECT_LT(iso8601(read->recordedAt), "2200");
}

TEST(SmartInputMethodSample, isUnreadableWithAValueOfAnotherType)
{
    for (const char* text : {R"({"id":"x"})", R"({"id":7})", R"({"inputSourceID":7})",
             R"({"recordedAt":"2025-01-01T00:00:00Z"})", R"({"recordedAt":true})", "[]", "null"})
        EXPECT_FALSE(fromJson<SmartInputMethodSample>(*parseJson(text))) << text;
}

TEST(SmartInputMethodSample, takesAnyNumberForADate)
{
    for (const double number : {-1e300, -1.0, 0.0, 1e300})
        EXPECT_EQ(fromJson<SmartInputMethodSample>(Json{{"recordedAt", number}})->recordedAt,
            Date{number});
}

} // namespace
} // namespace brindlex
