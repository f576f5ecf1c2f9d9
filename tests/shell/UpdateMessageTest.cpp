#include "shell/UpdateMessage.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Check = UpdateCheckResult;

class UpdateMessageTest : public testing::Test {
protected:
    UpdateMessage messageOf(const Check::Any& result, const std::string& language = "en") const
    {
        return updateMessage(result, program, StringCatalogue(language));
    }
    UpdateMessage messageOf(Check::Reason reason, const std::string& detail) const
    {
        return messageOf(Check::Any(Check::Failed{reason, detail}));
    }

    const ProgramBundle program{.name = "Brindlex", .shortVersion = "1.1.0"};
    UpdateFeed published{
        {1, 2, 0, {}, ""}, "2026-11-22", "Faster.\nMore browsers.", "https://a.example/get"};
};

TEST_F(UpdateMessageTest, saysThatThisIsTheNewestVersion)
{
    EXPECT_EQ(messageOf(Check::Any(Check::Current{})),
        (UpdateMessage{"Brindlex is up to date", "Version 1.1.0 is the newest one.", "", ""}));
}

TEST_F(UpdateMessageTest, saysWhatIsNewAndWhereItIs)
{
    EXPECT_EQ(messageOf(Check::Any(Check::Newer{published})),
        (UpdateMessage{"Version 1.2.0 is available",
            "You have version 1.1.0. The new one is from November 22, 2026.",
            "Faster.\nMore browsers.", "https://a.example/get"}));
}

TEST_F(UpdateMessageTest, isInTheLanguageOfTheTextsWithItsDates)
{
    const auto message = messageOf(Check::Any(Check::Newer{published}), "de");

    EXPECT_EQ(message.title, "Version 1.2.0 ist verfügbar");
    EXPECT_EQ(message.detail, "Installiert ist Version 1.1.0. Die neue ist vom 22. November 2026.");
}

TEST_F(UpdateMessageTest, saysNothingOfADayThatTheFeedDoesNotName)
{
    published.date.clear();

    EXPECT_EQ(messageOf(Check::Any(Check::Newer{published})).detail, "You have version 1.1.0.");
}

TEST_F(UpdateMessageTest, saysWhyItIsNotKnown)
{
    const auto title = "Could not check for updates";
    const std::vector<std::tuple<Check::Reason, std::string, std::string>> reasons{
        {Check::Reason::unreachable, "Couldn't resolve host name",
            "The server cannot be reached: Couldn't resolve host name"},
        {Check::Reason::timedOut, "Timeout was reached", "The server did not answer in time."},
        {Check::Reason::tooLarge, "", "The server sent more than Brindlex accepts."},
        {Check::Reason::malformed, "version is missing",
            "The server sent something that Brindlex cannot read."},
        {Check::Reason::status, "404", "The server answered with status 404."},
        {Check::Reason::insecureRedirect, "",
            "The server wants to go on over an unencrypted connection."},
    };
    for (const auto& [reason, detail, words] : reasons)
        EXPECT_EQ(messageOf(reason, detail), (UpdateMessage{title, words, "", ""}));
}

TEST_F(UpdateMessageTest, keepsAVersionAndAReasonInTheirPlaces)
{
    published.version.preRelease = {std::string(60'000, 'x')};
    EXPECT_EQ(messageOf(Check::Any(Check::Newer{published})).title,
        "Version 1.2.0-" + std::string(26, 'x') + "… is available");

    EXPECT_EQ(messageOf(Check::Reason::unreachable, "a\nb" + std::string(1'000, 'x')).detail,
        "The server cannot be reached: a b" + std::string(197, 'x') + "…");
    EXPECT_EQ(messageOf(Check::Reason::unreachable, "\xff").detail,
        "The server cannot be reached: \uFFFD");
}

TEST_F(UpdateMessageTest, takesBlankNotesForNone)
{
    published.notes = " \n\n\t";
    EXPECT_EQ(messageOf(Check::Any(Check::Newer{published})).notes, "");

    published.notes = "\n\nOne\n\nTwo\n";
    EXPECT_EQ(messageOf(Check::Any(Check::Newer{published})).notes, "One\n\nTwo");
}

TEST_F(UpdateMessageTest, namesNoAddressThatIsNotSecure)
{
    for (const auto* address : {"http://a.example", "file:///etc/passwd", "javascript:alert(1)",
             "https://bank.example@evil.example"}) {
        published.address = address;
        EXPECT_EQ(messageOf(Check::Any(Check::Newer{published})).address, "") << address;
    }
}

} // namespace
} // namespace brindlex
