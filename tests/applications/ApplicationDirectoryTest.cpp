#include "applications/ApplicationDirectory.h"

#include "platform/simulated/SimulatedApplicationBundles.h"
#include "platform/simulated/SimulatedClock.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

struct ApplicationDirectoryTest : testing::Test {
    void install(const std::string& identifier, const std::string& name)
    {
        bundles.install("/apps/" + name, {.identifier = identifier, .displayName = name});
    }

    SimulatedApplicationBundles bundles;
    SimulatedClock clock;
    ApplicationDirectory directory{bundles, clock};
};

TEST_F(ApplicationDirectoryTest, knowsWhatIsInstalled)
{
    install("org.editor", "Editor");
    EXPECT_EQ(directory.name("org.editor"), "Editor");
    EXPECT_EQ(directory.path("org.editor"), "/apps/Editor");
}

TEST_F(ApplicationDirectoryTest, knowsNothingOfOthersButTheClassOfTheirWindows)
{
    EXPECT_EQ(directory.name("org.unknown"), "");
    EXPECT_EQ(directory.name("wmclass:XTerm"), "XTerm");
    EXPECT_EQ(directory.name(""), "");
    EXPECT_EQ(directory.path("wmclass:XTerm"), std::nullopt);
}

TEST_F(ApplicationDirectoryTest, looksAgainForAnUnknownOneAfterTenSeconds)
{
    EXPECT_EQ(directory.name("org.editor"), "");
    install("org.editor", "Editor");
    clock.advance(9.9);
    EXPECT_EQ(directory.name("org.editor"), "");
    clock.advance(0.2);
    EXPECT_EQ(directory.name("org.editor"), "Editor");
}

} // namespace
} // namespace brindlex
