#include "mouse/MouseConfig.h"

#include "eventtap/HotkeyCombo.h"
#include "foundation/JsonCoding.h"
#include "support/basics/JsonReading.h"

#include <gtest/gtest.h>

#include <string>

namespace brindlex {
namespace {

constexpr auto bindingID = "00112233-4455-6677-8899-AABBCCDDEEFF";

MouseConfig example()
{
    MouseConfig config;
    config.click.enabled = false;
    config.click.bindings = {{*Uuid::fromText(bindingID), MouseButton::button4,
        ModifierSet::command, MouseAction::Plain::back}};
    config.gesture.bindings = {{*Uuid::fromText(bindingID), MouseButton::right, {},
        MouseDirection::up, MouseAction::SendKeystroke{49, ModifierSet::option}}};
    config.gesture.distanceThreshold = 45;
    config.scroll.smoothEnabled = true;
    config.scroll.disabledApps = {{"com.example.Editor", "Editor", {}}};
    return config;
}

TEST(MouseConfig, hasGesturesAndClicksOnAndTheWheelPlainByDefault)
{
    EXPECT_EQ(jsonText(toJson(MouseConfig{})),
        R"({"click":{"enabled":true,"bindings":[]},)"
        R"("gesture":{"enabled":true,"bindings":[],"distanceThreshold":30.0},)"
        R"("scroll":{"smoothEnabled":false,"smoothDuration":0.18,"speedMultiplier":1.0,)"
        R"("acceleration":0.0,"invertVertical":false,"invertHorizontal":false,)"
        R"("disabledApps":[]}})");
}

TEST(MouseConfig, readsWhatItWrote)
{
    const auto text = jsonText(toJson(example()));

    EXPECT_EQ(readJson<MouseConfig>(text).value(), example()) << text;
}

TEST(MouseConfig, storesABindingUnderTheNamesOfItsFields)
{
    EXPECT_EQ(jsonText(toJson(example().click.bindings[0])),
        R"({"id":"00112233-4455-6677-8899-AABBCCDDEEFF","button":3,"modifiers":1,)"
        R"("action":{"back":{}}})");
    EXPECT_EQ(jsonText(toJson(example().gesture.bindings[0])),
        R"({"id":"00112233-4455-6677-8899-AABBCCDDEEFF","button":1,"modifiers":0,)"
        R"("direction":"up","action":{"sendKeystroke":{"keyCode":49,"modifiers":2}}})");
}

TEST(MouseConfig, readsAScrollPartWithoutKeysAsTheDefault)
{
    EXPECT_EQ(readJson<MouseScrollConfig>("{}").value(), MouseScrollConfig{});
    EXPECT_FALSE(readJson<MouseScrollConfig>("{}").value().smoothEnabled);

    MouseScrollConfig fast;
    fast.speedMultiplier = 2.5;
    EXPECT_EQ(readJson<MouseScrollConfig>(R"({"speedMultiplier":2.5})").value(), fast);
}

TEST(MouseConfig, doesNotReadAScrollPartWithAKeyOfTheWrongType)
{
    EXPECT_FALSE(readJson<MouseScrollConfig>(R"({"smoothEnabled":1})"));
    EXPECT_FALSE(readJson<MouseScrollConfig>(R"({"disabledApps":[{}]})"));
}

TEST(MouseConfig, readsAnyNumberAboutTheWheel)
{
    for (const double number : {0.0, -0.0, -1.0, 1e308, -1e308, 5e-324}) {
        MouseScrollConfig config;
        config.smoothDuration = number;
        config.speedMultiplier = number;
        config.acceleration = number;
        EXPECT_EQ(readJson<MouseScrollConfig>(jsonText(toJson(config))).value(), config) << number;
    }
}

TEST(MouseConfig, readsNothingThatIsNoNumberAboutTheWheel)
{
    for (const std::string key : {"smoothDuration", "speedMultiplier", "acceleration"}) {
        for (const std::string value : {"\"NaN\"", "\"1\"", "true", "[1]", "{}"})
            EXPECT_FALSE(readJson<MouseScrollConfig>("{\"" + key + "\":" + value + "}")) << value;
        for (const std::string value : {"NaN", "nan", "Infinity", "-inf", "1e999", "0x10", "1,5"})
            EXPECT_FALSE(parseJson("{\"" + key + "\":" + value + "}")) << value;
        EXPECT_EQ(
            readJson<MouseScrollConfig>("{\"" + key + "\":null}").value(), MouseScrollConfig{});
    }
}

TEST(MouseConfig, needsEveryOtherKey)
{
    const auto whole = toJson(example());
    const std::vector<std::string> pointers{"/click", "/gesture", "/scroll", "/click/enabled",
        "/click/bindings", "/gesture/enabled", "/gesture/bindings", "/gesture/distanceThreshold",
        "/click/bindings/0/id", "/click/bindings/0/button", "/click/bindings/0/modifiers",
        "/click/bindings/0/action", "/gesture/bindings/0/id", "/gesture/bindings/0/button",
        "/gesture/bindings/0/modifiers", "/gesture/bindings/0/direction",
        "/gesture/bindings/0/action"};
    for (const auto& text : pointers) {
        const Json::json_pointer pointer(text);
        auto document = whole;
        document[pointer.parent_pointer()].erase(pointer.back());
        EXPECT_FALSE(fromJson<MouseConfig>(document)) << text;
    }
}

TEST(MouseConfig, hasNoButtonFive)
{
    auto document = toJson(example());
    document["click"]["bindings"][0]["button"] = 5;

    EXPECT_EQ(fromJson<MouseConfig>(document).error(),
        (JsonProblem{"click.bindings.0.button", "is not a value of the enumeration"}));
}

TEST(MouseConfig, isUnreadableAsAWholeForOneBadAction)
{
    auto document = toJson(example());
    document["gesture"]["bindings"][0]["action"] = Json::object();

    EXPECT_EQ(fromJson<MouseConfig>(document).error(),
        (JsonProblem{"gesture.bindings.0.action", "Unknown mouse action"}));
}

TEST(MouseConfig, readsAnIdentifierInLowerCase)
{
    auto document = toJson(example());
    document["click"]["bindings"][0]["id"] = "00112233-4455-6677-8899-aabbccddeeff";

    EXPECT_EQ(fromJson<MouseConfig>(document).value(), example());
}

} // namespace
} // namespace brindlex
