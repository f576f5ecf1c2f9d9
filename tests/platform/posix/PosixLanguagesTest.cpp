#include "platform/posix/PosixLanguages.h"

#include <gtest/gtest.h>

#include <map>

namespace brindlex {
namespace {

using Languages = std::vector<std::string>;

Languages languagesOf(const std::map<std::string, std::string>& variables)
{
    return posixLanguages([&](const char* name) {
        const auto found = variables.find(name);
        return found == variables.end() ? nullptr : found->second.c_str();
    });
}

TEST(PosixLanguages, areThatOfTheFirstVariableThatIsSet)
{
    EXPECT_EQ(languagesOf({{"LANG", "de_AT.UTF-8"}}), Languages{"de_AT.UTF-8"});
    EXPECT_EQ(languagesOf({{"LANG", "de"}, {"LC_MESSAGES", "fr"}}), Languages{"fr"});
    EXPECT_EQ(
        languagesOf({{"LANG", "de"}, {"LC_MESSAGES", "fr"}, {"LC_ALL", "ko"}}), Languages{"ko"});
    EXPECT_EQ(languagesOf({{"LANG", "de"}, {"LC_ALL", ""}}), Languages{"de"});
    EXPECT_EQ(languagesOf({{"LANG", "de"}, {"LC_TIME", "fr"}}), Languages{"de"});
}

TEST(PosixLanguages, beginWithThoseOfTheList)
{
    EXPECT_EQ(
        languagesOf({{"LANG", "de"}, {"LANGUAGE", "pt:fr_CA:"}}), (Languages{"pt", "fr_CA", "de"}));
    EXPECT_EQ(languagesOf({{"LANG", "de"}, {"LANGUAGE", ""}}), Languages{"de"});
    EXPECT_EQ(languagesOf({{"LANG", "de"}, {"LANGUAGE", ":::"}}), Languages{"de"});
}

TEST(PosixLanguages, areNoneInTheLocaleOfTheSystem)
{
    EXPECT_EQ(languagesOf({}), Languages{});
    for (const auto* locale : {"C", "POSIX", "C.UTF-8"})
        EXPECT_EQ(languagesOf({{"LANG", locale}, {"LANGUAGE", "de"}}), Languages{}) << locale;
    EXPECT_EQ(languagesOf({{"LANG", "de"}, {"LC_ALL", "C"}}), Languages{});
}

} // namespace
} // namespace brindlex
