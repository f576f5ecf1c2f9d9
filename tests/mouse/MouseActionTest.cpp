#include "mouse/MouseAction.h"

#include "foundation/JsonCoding.h"
#include "support/basics/JsonReading.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace brindlex {
namespace {

using Action = MouseAction::Any;

Result<Action, JsonProblem> readAction(std::string_view text) { return readJson<Action>(text); }

TEST(MouseAction, isStoredUnderTheNameOfItsCase)
{
    const std::vector<std::pair<Action, std::string>> rows{
        {MouseAction::Plain::missionControl, R"({"missionControl":{}})"},
        {MouseAction::Plain::back, R"({"back":{}})"},
        {MouseAction::Plain::forward, R"({"forward":{}})"},
        {MouseAction::Plain::showDesktop, R"({"showDesktop":{}})"},
        {MouseAction::Plain::switchSpaceLeft, R"({"switchSpaceLeft":{}})"},
        {MouseAction::Plain::switchSpaceRight, R"({"switchSpaceRight":{}})"},
        {MouseAction::SendKeystroke{49, ModifierSet::command},
            R"({"sendKeystroke":{"keyCode":49,"modifiers":1}})"},
        {MouseAction::RunShellCommand{"echo hi"}, R"({"runShellCommand":{"_0":"echo hi"}})"},
    };
    for (const auto& [action, text] : rows) {
        EXPECT_EQ(jsonText(toJson(action)), text);
        EXPECT_EQ(readAction(text).value(), action) << text;
    }
}

TEST(MouseAction, ofARetiredNameBecomesMissionControl)
{
    const auto action = readAction(R"({"launchpad":{}})").value();

    EXPECT_EQ(action, Action(MouseAction::Plain::missionControl));
    EXPECT_EQ(jsonText(toJson(action)), R"({"missionControl":{}})");
}

TEST(MouseAction, looksOnlyForThePresenceOfAPlainKey)
{
    for (const auto* text : {R"({"back":null})", R"({"back":7})", R"({"back":"x"})",
             R"({"back":{"extra":1}})", R"({"back":[]})"})
        EXPECT_EQ(readAction(text).value(), Action(MouseAction::Plain::back)) << text;
}

TEST(MouseAction, looksForItsKeysInOneOrder)
{
    const std::vector<std::string> keys{"missionControl", "back", "forward", "showDesktop",
        "switchSpaceLeft", "switchSpaceRight", "sendKeystroke", "runShellCommand"};
    const std::vector<Action> actions{MouseAction::Plain::missionControl, MouseAction::Plain::back,
        MouseAction::Plain::forward, MouseAction::Plain::showDesktop,
        MouseAction::Plain::switchSpaceLeft, MouseAction::Plain::switchSpaceRight,
        MouseAction::SendKeystroke{1, {}}, MouseAction::RunShellCommand{"x"}};
    for (std::size_t first = 0; first < keys.size(); ++first) {
        auto document = Json::object();
        for (auto key = keys.size(); key-- > first;)
            document[keys[key]] = Json{};
        document["sendKeystroke"] = Json{{"keyCode", 1}, {"modifiers", 0}};
        document["runShellCommand"] = "x";
        if (first == 7)
            document.erase("sendKeystroke");
        EXPECT_EQ(fromJson<Action>(document).value(), actions[first]) << jsonText(document);
    }
    EXPECT_EQ(readAction(R"({"back":{},"launchpad":{}})").value(),
        Action(MouseAction::Plain::missionControl));
}

TEST(MouseAction, readsBothFormsOfAShellCommand)
{
    EXPECT_EQ(readAction(R"({"runShellCommand":{"_0":"x"}})").value(),
        readAction(R"({"runShellCommand":"x"})").value());
    EXPECT_EQ(
        readAction(R"({"runShellCommand":""})").value(), Action(MouseAction::RunShellCommand{""}));
}

TEST(MouseAction, withoutAKnownKeyIsUnknown)
{
    EXPECT_EQ(readAction("{}").error(), (JsonProblem{"", "Unknown mouse action"}));
    EXPECT_EQ(readAction(R"({"Back":{}})").error(), (JsonProblem{"", "Unknown mouse action"}));
}

TEST(MouseAction, withABadPayloadTellsWhere)
{
    EXPECT_EQ(readAction(R"("back")").error(), (JsonProblem{"", "is not an object"}));
    EXPECT_EQ(readAction(R"({"sendKeystroke":{"keyCode":1}})").error(),
        (JsonProblem{"sendKeystroke.modifiers", "is missing"}));
    EXPECT_EQ(readAction(R"({"sendKeystroke":{"keyCode":1.5,"modifiers":0}})").error().path,
        "sendKeystroke.keyCode");
    EXPECT_EQ(readAction(R"({"runShellCommand":{}})").error(),
        (JsonProblem{"runShellCommand._0", "is missing"}));
    EXPECT_EQ(readAction(R"({"runShellCommand":{"_0":1}})").error(),
        (JsonProblem{"runShellCommand._0", "is not text"}));
    EXPECT_EQ(readAction(R"({"runShellCommand":1})").error(),
        (JsonProblem{"runShellCommand", "is not an object"}));
}

TEST(MouseAction, doesNotFallBackFromABadPayloadToALaterKey)
{
    EXPECT_FALSE(readAction(R"({"sendKeystroke":1,"runShellCommand":"x"})"));
}

TEST(MouseAction, keepsAShellCommandToTheByte)
{
    const Action action = MouseAction::RunShellCommand{"printf '%s\\n' \"ä\t\u4F60\"; exit 1\n"};

    const auto text = jsonText(toJson(action));

    EXPECT_EQ(readAction(text).value(), action) << text;
}

} // namespace
} // namespace brindlex
