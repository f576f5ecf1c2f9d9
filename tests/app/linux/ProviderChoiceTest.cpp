#include "app/linux/ProviderChoice.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

namespace brindlex {
namespace {

struct Ability {
    Ability(std::string ownName, std::string& sharedLog) : name(std::move(ownName)), log(sharedLog)
    {
        log += "+" + name;
    }
    ~Ability() { log += "-" + name; }
    Ability(const Ability&) = delete;
    Ability& operator=(const Ability&) = delete;

    std::string name;
    std::string& log;
};

struct ProviderChoiceTest : testing::Test {
    ProviderRow<Ability> row(bool isOffered, const std::string& name)
    {
        return {isOffered, [this, name] { return std::make_shared<Ability>(name, log); }};
    }

    std::string log;
};

TEST_F(ProviderChoiceTest, takesTheFirstThatIsOffered)
{
    ProviderChoice choice;
    EXPECT_EQ(choice.of({row(true, "best"), row(true, "next")}).name, "best");
    EXPECT_EQ(choice.of({row(false, "best"), row(true, "next")}).name, "next");
}

TEST_F(ProviderChoiceTest, makesNoneOfTheOthers)
{
    ProviderChoice choice;
    choice.of({row(false, "a"), row(true, "b"), row(true, "c")});
    EXPECT_EQ(log, "+b");
}

TEST_F(ProviderChoiceTest, releasesTheLatestFirst)
{
    {
        ProviderChoice choice;
        choice.of({row(true, "a")});
        choice.of({row(true, "b")});
    }
    EXPECT_EQ(log, "+a+b-b-a");
}

TEST_F(ProviderChoiceTest, withoutAnyProviderIsFatal)
{
    ProviderChoice choice;
    EXPECT_DEATH(choice.of({row(false, "a")}), "offers nothing");
}

} // namespace
} // namespace brindlex
