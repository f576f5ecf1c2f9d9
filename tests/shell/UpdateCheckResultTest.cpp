#include "shell/UpdateCheckResult.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class UpdateCheckResultTest : public testing::Test {
protected:
    using Current = UpdateCheckResult::Current;
    using Newer = UpdateCheckResult::Newer;
    using Failed = UpdateCheckResult::Failed;
    using Reason = UpdateCheckResult::Reason;
    using Any = UpdateCheckResult::Any;

    Any resultFor(const std::string& ownVersion) const
    {
        return updateCheckResult(encodeUpdateFeed(published), ownVersion);
    }

    const UpdateFeed published{{1, 2, 0, {}, ""}, "2026-11-22", "Faster.", "https://a.example/get"};
};

TEST_F(UpdateCheckResultTest, isNewerForALowerVersion)
{
    EXPECT_EQ(resultFor("1.1.9"), Any(Newer{published}));
    EXPECT_EQ(resultFor("1.2.0-rc.1"), Any(Newer{published}));
}

TEST_F(UpdateCheckResultTest, isCurrentForTheSameVersionAndForAHigherOne)
{
    EXPECT_EQ(resultFor("1.2.0"), Any(Current{}));
    EXPECT_EQ(resultFor("1.2.0+another.build"), Any(Current{}));
    EXPECT_EQ(resultFor("1.3.0-alpha"), Any(Current{}));
}

TEST_F(UpdateCheckResultTest, isNewerForAProgramWithoutAVersion)
{
    EXPECT_EQ(resultFor(""), Any(Newer{published}));
}

TEST_F(UpdateCheckResultTest, saysWhyItIsNotKnown)
{
    const std::vector<std::pair<HttpProblem::Kind, Reason>> reasons{
        {HttpProblem::Kind::unreachable, Reason::unreachable},
        {HttpProblem::Kind::timedOut, Reason::timedOut},
        {HttpProblem::Kind::tooLarge, Reason::tooLarge},
        {HttpProblem::Kind::status, Reason::status},
        {HttpProblem::Kind::insecure, Reason::insecureRedirect},
    };
    for (const auto& [kind, reason] : reasons)
        EXPECT_EQ(updateCheckResult(fail(HttpProblem{kind, "words"}), "1.0.0"),
            Any(Failed{reason, "words"}));
}

TEST_F(UpdateCheckResultTest, saysWhatIsWrongWithTheFeed)
{
    EXPECT_EQ(updateCheckResult(std::string("{}"), "1.0.0"),
        Any(Failed{Reason::malformed, "version is missing"}));
}

} // namespace
} // namespace brindlex
