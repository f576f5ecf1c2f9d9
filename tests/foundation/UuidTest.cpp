#include "foundation/Uuid.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <unordered_set>

namespace brindlex {
namespace {

constexpr Uuid sampleUuid{{0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF, 0xFE, 0xDC, 0xBA, 0x98,
    0x76, 0x54, 0x32, 0x10}};

TEST(Uuid, isAllZerosByDefault)
{
    EXPECT_EQ(Uuid().text(), "00000000-0000-0000-0000-000000000000");
}

TEST(Uuid, writesItsTextInUpperCase)
{
    EXPECT_EQ(sampleUuid.text(), "01234567-89AB-CDEF-FEDC-BA9876543210");
}

TEST(Uuid, isReadInEitherCase)
{
    EXPECT_EQ(Uuid::fromText("01234567-89AB-CDEF-FEDC-BA9876543210"), sampleUuid);
    EXPECT_EQ(Uuid::fromText("01234567-89ab-cdef-fedc-ba9876543210"), sampleUuid);
    EXPECT_EQ(Uuid::fromText("01234567-89Ab-cDeF-fEdC-Ba9876543210"), sampleUuid);
    EXPECT_EQ(Uuid::fromText("00000000-0000-0000-0000-000000000000"), Uuid());
}

TEST(Uuid, isNotReadFromOtherText)
{
    for (const auto* text : {"", "01234567-89AB-CDEF-FEDC-BA987654321",
             "01234567-89AB-CDEF-FEDC-BA98765432100", "0123456789ABCDEFFEDCBA9876543210",
             "{01234567-89AB-CDEF-FEDC-BA98765432}", "01234567-89AB-CDEF-FEDC-BA987654321G",
             "01234567-89AB-CDEF-FEDC_BA9876543210", "0123456-789AB-CDEF-FEDC-BA9876543210",
             "01234567-89AB-CDEF-FEDC--A9876543210", "01234567-89AB-CDEF-FEDC-BA98765432 0",
             " 1234567-89AB-CDEF-FEDC-BA9876543210", "01234567-89AB-CDEF-FEDC-BA98765432１"})
        EXPECT_EQ(Uuid::fromText(text), std::nullopt) << text;
}

TEST(Uuid, isRandomOfVersion4WhenNew)
{
    std::set<Uuid> seen;
    for (int count = 0; count < 1'000; ++count) {
        const auto uuid = Uuid::random();
        const auto text = uuid.text();
        ASSERT_EQ(text[14], '4') << text;
        ASSERT_NE(std::string("89AB").find(text[19]), std::string::npos) << text;
        ASSERT_EQ(Uuid::fromText(text), uuid);
        seen.insert(uuid);
    }
    EXPECT_EQ(seen.size(), 1'000u);
}

TEST(Uuid, isOrderedByItsBytesAndMayBeAKey)
{
    auto next = sampleUuid;
    next.bytes[15] = 0x11;
    EXPECT_LT(sampleUuid, next);

    const std::unordered_set<Uuid> keys{sampleUuid, next, sampleUuid};
    EXPECT_EQ(keys.size(), 2u);
    EXPECT_TRUE(keys.contains(sampleUuid));
    EXPECT_FALSE(keys.contains(Uuid()));
}

} // namespace
} // namespace brindlex
