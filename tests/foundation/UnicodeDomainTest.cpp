#include "foundation/UnicodeDomain.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(unicodeDomain, decodesLabelsInPunycode)
{
    EXPECT_EQ(unicodeDomain("xn--bcher-kva.example"), "bücher.example");
    EXPECT_EQ(unicodeDomain("shop.xn--bcher-kva.example"), "shop.bücher.example");
    EXPECT_EQ(unicodeDomain("xn--fiqs8s"), "中国");
    EXPECT_EQ(unicodeDomain("xn--e1afmkfd.xn--p1ai"), "пример.рф");
    EXPECT_EQ(unicodeDomain("xn--strae-oqa.example"), "straße.example");
}

TEST(unicodeDomain, leavesAllElseAsItIs)
{
    for (const auto* domain : {"", "example.com", "bücher.example", "axn--b.example", "..", "xn--",
             "xn--a", "xn--99999999.example", "xn--\xff\xfe.example"})
        EXPECT_EQ(unicodeDomain(domain), domain);
}

} // namespace
} // namespace brindlex
