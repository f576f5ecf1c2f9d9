#include "applications/ApplicationChoices.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Names = std::vector<std::string>;

const std::vector<InstalledApplication> installedHere{
    {"org.zed", "Zed", "/apps/zed", true},
    {"org.editor", "Éditeur", "/apps/editor", true},
    {"org.mail", "Mail", "/apps/mail", true},
    {"org.hidden", "Hidden", "/apps/hidden", false},
    {"org.mail", "Mail again", "/apps/mail2", true},
    {"org.files", "files", "/apps/files", true},
};

Names namesOf(const std::vector<ApplicationChoice>& choices)
{
    Names names;
    for (const auto& choice : choices)
        names.push_back(choice.name);
    return names;
}

TEST(ApplicationChoices, areThoseOfTheMenusOnceByName)
{
    EXPECT_EQ(
        namesOf(applicationChoices(installedHere, {})), (Names{"Éditeur", "files", "Mail", "Zed"}));
}

TEST(ApplicationChoices, beginWithTheRecentOnesThenTheRunningOnes)
{
    const ApplicationUse use{{"org.zed", "org.gone", "org.files"}, {"org.mail", "org.files"}};

    const auto choices = applicationChoices(installedHere, use);

    EXPECT_EQ(namesOf(choices), (Names{"Zed", "files", "Mail", "Éditeur"}));
    EXPECT_FALSE(choices[0].isRunning);
    EXPECT_TRUE(choices[1].isRunning);
    EXPECT_EQ(choices[2], (ApplicationChoice{"org.mail", "Mail", "/apps/mail", true}));
}

TEST(ApplicationChoices, matchByWordsWithoutCaseAndAccents)
{
    const auto choices = applicationChoices(installedHere, {});

    EXPECT_EQ(namesOf(matchingChoices(choices, "EDIT")), (Names{"Éditeur"}));
    EXPECT_EQ(namesOf(matchingChoices(choices, " i  l ")), (Names{"files", "Mail"}));
    EXPECT_EQ(namesOf(matchingChoices(choices, "")).size(), 4U);
    EXPECT_EQ(namesOf(matchingChoices(choices, "nothing")), Names{});
}

TEST(ApplicationChoices, haveAPathForWhatRulesKnowAgain)
{
    const auto pathOf = [](const std::optional<std::string>& identifier,
                            const std::optional<std::filesystem::path>& bundle) {
        return pathToChoose({.bundleIdentifier = identifier, .bundlePath = bundle});
    };
    using Path = std::optional<std::filesystem::path>;

    EXPECT_EQ(pathOf("org.mail", "/apps/mail"), Path("/apps/mail"));
    EXPECT_EQ(pathOf("wmclass:Strange", {}), Path("wmclass:Strange"));
    EXPECT_EQ(pathOf("exe:strange", {}), Path("exe:strange"));
    EXPECT_EQ(pathOf("unnamed:1:2", {}), Path());
    EXPECT_EQ(pathOf({}, {}), Path());
}

} // namespace
} // namespace brindlex
