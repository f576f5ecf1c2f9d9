#include "shell/LanguageManager.h"

#include "platform/simulated/SimulatedComputer.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class LanguageManagerTest : public testing::Test {
protected:
    LanguageManagerTest()
    {
        manager.onLanguage = [this](const std::optional<std::string>& code) {
            journal.add("publish " + code.value_or("nothing"));
        };
    }

    std::optional<PreferenceValue> stored(const std::string& key)
    {
        return computer.defaults.value(key);
    }

    SimulatedJournal journal;
    RecordedLog log{&journal};
    SimulatedComputer computer{{.journal = &journal}};
    LanguageManager manager{computer.defaults, computer.relaunching, computer.instances};
};

TEST_F(LanguageManagerTest, leavesTheLanguageToTheSystemWhereNothingIsStored)
{
    computer.defaults.set("AppleLanguages", std::vector<std::string>{"pl"});
    journal.take();

    manager.applyStoredPreference();

    EXPECT_EQ(stored("AppleLanguages"), PreferenceValue(std::vector<std::string>{"pl"}));
    EXPECT_EQ(journal.take(), std::vector<std::string>{});
}

TEST_F(LanguageManagerTest, publishesTheStoredLanguageAndThenMakesItTheOnlyOne)
{
    computer.defaults.set("languagePreference", "zh-Hant");
    journal.take();

    manager.applyStoredPreference();

    EXPECT_EQ(stored("AppleLanguages"), PreferenceValue(std::vector<std::string>{"zh-Hant"}));
    EXPECT_EQ(journal.take(), (std::vector<std::string>{"publish zh-Hant", "set AppleLanguages"}));
}

TEST_F(LanguageManagerTest, takesTheOnlyLanguageAwayForThatOfTheSystem)
{
    computer.defaults.set("AppleLanguages", std::vector<std::string>{"de"});
    computer.defaults.set("languagePreference", "system");
    journal.take();

    manager.applyStoredPreference();
    EXPECT_EQ(stored("AppleLanguages"), std::nullopt);
    EXPECT_EQ(journal.take().front(), "publish nothing");

    manager.applyStoredPreference();
    EXPECT_EQ(stored("AppleLanguages"), std::nullopt);
}

TEST_F(LanguageManagerTest, takesAnUnknownLanguageForThatOfTheSystem)
{
    computer.defaults.set("AppleLanguages", std::vector<std::string>{"de"});
    computer.defaults.set("languagePreference", "tlh");

    manager.applyStoredPreference();

    EXPECT_EQ(stored("AppleLanguages"), std::nullopt);
    EXPECT_EQ(stored("languagePreference"), PreferenceValue("tlh"));
}

TEST_F(LanguageManagerTest, storesAChoiceBeforeTheNewInstanceTakesThePlaceOfThisOne)
{
    manager.select(LanguagePreference::ja);

    EXPECT_EQ(journal.take(),
        (std::vector<std::string>{"set languagePreference", "publish ja",
            "set shouldRestoreFocusAfterLanguageRelaunch", "synchronize", "relaunch",
            "terminate"}));
    EXPECT_EQ(stored("languagePreference"), PreferenceValue("ja"));
    EXPECT_EQ(stored("shouldRestoreFocusAfterLanguageRelaunch"), PreferenceValue(true));
    EXPECT_EQ(stored("AppleLanguages"), std::nullopt);
}

TEST_F(LanguageManagerTest, goesOnWhenThereIsNoNewInstance)
{
    computer.relaunching.refusal = "No such file or directory";

    manager.select(LanguagePreference::fr);

    EXPECT_EQ(log.lines(),
        std::vector<std::string>{"ERROR [lifecycle] The program cannot be started anew for its "
                                 "language: No such file or directory"});
    EXPECT_FALSE(computer.instances.isTerminating());
    EXPECT_EQ(stored("languagePreference"), PreferenceValue("fr"));
    EXPECT_EQ(stored("shouldRestoreFocusAfterLanguageRelaunch"), PreferenceValue(true));
}

} // namespace
} // namespace brindlex
