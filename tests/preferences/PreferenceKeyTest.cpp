#include "preferences/PreferenceKey.h"

#include "eventtap/HotkeyCombo.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "preferences/UserDefaultsStorageBox.h"
#include "shell/LanguagePreference.h"
#include "shell/MainWindowTab.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

const PreferenceKey<bool> flag{true, "flag"};
const PreferenceKey<std::int64_t> number{200, "number"};
const PreferenceKey<double> ratio{0.5, "ratio"};
const PreferenceKey<std::string> textKey{"default", "text"};
const PreferenceKey<std::vector<std::string>> list{{"default"}, "list"};
const PreferenceKey<MainWindowTab> tab{MainWindowTab::general, "tab"};
const PreferenceKey<LanguagePreference> language{LanguagePreference::system, "language"};
const PreferenceKey<HotkeyCombo> hotkey{{9, ModifierSet{9}}, "hotkey"};

const std::vector<PreferenceValue> oneOfEachKind{true, std::int64_t{7}, 0.25, std::string("Mouse"),
    std::vector<std::string>{"a", "b"}, PreferenceJson{R"([1,"x"])"}};

template <typename Key>
void expectDefaultForEveryKindBut(std::size_t kind, const Key& key)
{
    for (const auto& object : oneOfEachKind) {
        if (object.index() == kind)
            continue;
        SimulatedUserDefaults defaults;
        defaults.set(key.key, object);
        EXPECT_EQ(readPreference(defaults, key), key.defaultValue) << object.index();
        EXPECT_EQ(defaults.value(key.key), object) << "The stored object has to stay.";
    }
}

TEST(PreferenceKey, givesTheDefaultWhereNothingIsStored)
{
    const SimulatedUserDefaults defaults;
    EXPECT_EQ(readPreference(defaults, flag), true);
    EXPECT_EQ(readPreference(defaults, number), 200);
    EXPECT_EQ(readPreference(defaults, textKey), "default");
    EXPECT_EQ(readPreference(defaults, list), std::vector<std::string>{"default"});
    EXPECT_EQ(readPreference(defaults, tab), MainWindowTab::general);
    EXPECT_EQ(readPreference(defaults, hotkey), (HotkeyCombo{9, ModifierSet{9}}));
}

TEST(PreferenceKey, writesEachValueInItsStoredForm)
{
    SimulatedUserDefaults defaults;
    writePreference(defaults, flag, false);
    writePreference(defaults, number, 12);
    writePreference(defaults, ratio, 0.75);
    writePreference(defaults, textKey, "other");
    writePreference(defaults, list, {"de", "en"});
    writePreference(defaults, tab, MainWindowTab::clipboard);
    writePreference(defaults, language, LanguagePreference::zhHant);
    writePreference(defaults, hotkey, {0, ModifierSet::option});

    EXPECT_EQ(defaults.value("flag"), PreferenceValue(false));
    EXPECT_EQ(defaults.value("number"), PreferenceValue(std::int64_t{12}));
    EXPECT_EQ(defaults.value("ratio"), PreferenceValue(0.75));
    EXPECT_EQ(defaults.value("text"), PreferenceValue("other"));
    EXPECT_EQ(defaults.value("list"), PreferenceValue(std::vector<std::string>{"de", "en"}));
    EXPECT_EQ(defaults.value("tab"), PreferenceValue("Clipboard"));
    EXPECT_EQ(defaults.value("language"), PreferenceValue("zh-Hant"));
    EXPECT_EQ(defaults.value("hotkey"), PreferenceValue(R"({"keyCode":0,"modifiers":2})"));
}

TEST(PreferenceKey, readsWhatItHasWritten)
{
    SimulatedUserDefaults defaults;
    for (const auto value : allCases<MainWindowTab>()) {
        writePreference(defaults, tab, value);
        EXPECT_EQ(readPreference(defaults, tab), value);
    }
    for (const auto value : allCases<LanguagePreference>()) {
        writePreference(defaults, language, value);
        EXPECT_EQ(readPreference(defaults, language), value);
    }
    writePreference(defaults, list, {});
    EXPECT_EQ(readPreference(defaults, list), std::vector<std::string>{});
    writePreference(defaults, hotkey, {49, ModifierSet{1}});
    EXPECT_EQ(readPreference(defaults, hotkey), (HotkeyCombo{49, ModifierSet{1}}));
}

TEST(PreferenceKey, takesAnObjectOfAnotherTypeForNothingAndLeavesIt)
{
    expectDefaultForEveryKindBut(0, flag);
    expectDefaultForEveryKindBut(1, number);
    expectDefaultForEveryKindBut(2, ratio);
    expectDefaultForEveryKindBut(3, textKey);
    expectDefaultForEveryKindBut(4, list);
    expectDefaultForEveryKindBut(3, tab);
    expectDefaultForEveryKindBut(3, language);
    // The text of the list is no box either.
    expectDefaultForEveryKindBut(oneOfEachKind.size(), hotkey);
}

TEST(PreferenceKey, readsABoxThatStandsThereAsPlainJson)
{
    SimulatedUserDefaults defaults;
    defaults.set("hotkey", PreferenceJson{R"({"keyCode":49,"modifiers":1})"});
    EXPECT_EQ(readPreference(defaults, hotkey), (HotkeyCombo{49, ModifierSet{1}}));
    defaults.set("hotkey", PreferenceJson{R"({"keyCode":49})"});
    EXPECT_EQ(readPreference(defaults, hotkey), hotkey.defaultValue);
}

TEST(PreferenceKey, givesTheDefaultForAnUnknownRawValue)
{
    SimulatedUserDefaults defaults;
    for (const std::string unknown : {"general", "GENERAL", "General ", "", "Dictations"}) {
        defaults.set("tab", unknown);
        EXPECT_EQ(readPreference(defaults, tab), MainWindowTab::general) << unknown;
        defaults.set("language", unknown);
        EXPECT_EQ(readPreference(defaults, language), LanguagePreference::system) << unknown;
    }
}

TEST(PreferenceKey, givesTheDefaultForAMalformedBoxAndLeavesTheText)
{
    SimulatedUserDefaults defaults;
    defaults.set("hotkey", R"({"keyCode":9,)");
    EXPECT_EQ(readPreference(defaults, hotkey), hotkey.defaultValue);
    EXPECT_EQ(defaults.value("hotkey"), PreferenceValue(R"({"keyCode":9,)"));
}

TEST(PreferenceKey, givesTheDefaultHotkeyForOneStoredAsANumber)
{
    SimulatedUserDefaults defaults;
    defaults.set("hotkey", std::int64_t{9});
    EXPECT_EQ(readPreference(defaults, hotkey), (HotkeyCombo{9, ModifierSet{9}}));
    EXPECT_EQ(defaults.value("hotkey"), PreferenceValue(std::int64_t{9}));
}

TEST(PreferenceKey, writesAnEqualValueAsWell)
{
    SimulatedUserDefaults defaults;
    writePreference(defaults, flag, true);
    writePreference(defaults, flag, true);
    EXPECT_EQ(defaults.writes().size(), 2U);
}

} // namespace
} // namespace brindlex
