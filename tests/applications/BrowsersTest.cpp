#include "applications/Browsers.h"

#include "foundation/Text.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace brindlex {
namespace {

TEST(Browsers, haveOneRowEach)
{
    std::set<std::string_view> identifiers;
    for (const auto& browser : browsers())
        EXPECT_TRUE(identifiers.insert(browser.bundleID).second) << browser.bundleID;
    EXPECT_EQ(identifiers.size(), 17U);
}

TEST(Browsers, shareNoNameOnLinuxAndWriteItInLowerCase)
{
    std::set<std::string_view> names;
    for (const auto& browser : browsers()) {
        for (const auto name : browser.linuxNames) {
            if (name.empty())
                continue;
            EXPECT_TRUE(names.insert(name).second) << name;
            EXPECT_EQ(lowercased(name), name);
        }
    }
    EXPECT_EQ(names.size(), 48U);
}

} // namespace
} // namespace brindlex
