#include "inputmethod/RuleObstacles.h"

#include "platform/simulated/SimulatedComputer.h"
#include "support/basics/RecordedLog.h"
#include "support/switching/SwitchRecords.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;

/// Looks on a computer with two layouts and two applications.
class RuleObstaclesTest : public testing::Test {
protected:
    RuleObstaclesTest()
    {
        for (const auto* id : {"xkb:us::eng", "xkb:de::deu"})
            computer.inputSources.install(SimulatedInputSources::keyboard(id, "Name"));
        install("org.mozilla.firefox", "Firefox");
        install("org.kde.kate", "Texteditor");
    }

    void install(const std::string& identifier, const std::string& name)
    {
        computer.bundles.install(
            "/applications/" + identifier, {.identifier = identifier, .displayName = name});
    }

    Lines looksAt(const std::string& bundleID)
    {
        obstacles.checkApplications({appRule(bundleID, "xkb:de::deu")});
        return log.takeLines();
    }

    RecordedLog log;
    SimulatedComputer computer;
    RuleObstacles obstacles{computer.inputSources, computer.bundles, computer.applications};
};

TEST_F(RuleObstaclesTest, sayOnceWhichSourcesThereAre)
{
    obstacles.checkSource("xkb:de");
    obstacles.checkSource("xkb:de");

    EXPECT_EQ(log.takeLines(),
        Lines{"WARN [input-method] No input source is called \"xkb:de\"; there are "
              "\"xkb:us::eng\" and \"xkb:de::deu\""});
    obstacles.checkSource("");
    EXPECT_EQ(log.lines().size(), 1u) << "Another one is another line.";
}

TEST_F(RuleObstaclesTest, sayNothingOfASourceThatIsThereOrOfNoneAtAll)
{
    obstacles.checkSource("xkb:de::deu");
    computer.inputSources.setResponds(false);
    obstacles.checkSource("xkb:de");

    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(RuleObstaclesTest, sayOnceWhichApplicationIsNotThere)
{
    EXPECT_EQ(looksAt("org.example.Gone"),
        Lines{"WARN [input-method] No application is called \"org.example.Gone\", so its rule does "
              "not apply"});
    EXPECT_EQ(looksAt("org.example.Gone"), Lines{});
}

TEST_F(RuleObstaclesTest, nameApplicationsThatMayBeMeant)
{
    const auto begin = [](const std::string& id) {
        return "WARN [input-method] No application is called \"" + id
            + "\", so its rule does not apply; there are ";
    };
    EXPECT_EQ(looksAt("firefox"), Lines{begin("firefox") + "\"org.mozilla.firefox\""});
    EXPECT_EQ(looksAt("com.example.KATE"), Lines{begin("com.example.KATE") + "\"org.kde.kate\""});
    EXPECT_EQ(looksAt("texteditor"), Lines{begin("texteditor") + "\"org.kde.kate\""});
    for (const auto* id : {"a.one", "b.one", "b.one", "c.one", "d.one"})
        install(id, "One");
    EXPECT_EQ(looksAt("one"), Lines{begin("one") + "\"a.one\", \"b.one\" and \"c.one\""});
}

TEST_F(RuleObstaclesTest, sayNothingOfAnApplicationThatIsThere)
{
    computer.applications.bringToFront(
        {.processIdentifier = ProcessIdentity{7}, .bundleIdentifier = "org.example.Runs"});
    EXPECT_EQ(looksAt("org.kde.kate"), Lines{});
    EXPECT_EQ(looksAt("org.example.Runs"), Lines{}) << "It runs, installed or not.";
    EXPECT_EQ(looksAt("wmclass:XTerm"), Lines{}) << "It is there as soon as it runs.";
    EXPECT_EQ(looksAt("exe:game"), Lines{});
}

TEST_F(RuleObstaclesTest, sayWhatAnEmptyIdentifierIs)
{
    EXPECT_EQ(looksAt(""),
        Lines{"WARN [input-method] No application is called \"\", so its rule does not apply"});
}

} // namespace
} // namespace brindlex
