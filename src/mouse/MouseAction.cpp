#include "mouse/MouseAction.h"

#include <array>
#include <utility>

namespace brindlex {
namespace {

using Action = MouseAction::Any;

struct PlainCase {
    const char* key;
    Action action;
};

/// The keys of the cases without payload, in the order in which reading looks for them.
const auto& plainCases()
{
    static const std::array cases{
        PlainCase{"missionControl", MouseAction::MissionControl{}},
        PlainCase{"launchpad", MouseAction::MissionControl{}},
        PlainCase{"back", MouseAction::Back{}},
        PlainCase{"forward", MouseAction::Forward{}},
        PlainCase{"showDesktop", MouseAction::ShowDesktop{}},
        PlainCase{"switchSpaceLeft", MouseAction::SwitchSpaceLeft{}},
        PlainCase{"switchSpaceRight", MouseAction::SwitchSpaceRight{}},
    };
    return cases;
}

constexpr const char* sendKeystroke = "sendKeystroke";
constexpr const char* runShellCommand = "runShellCommand";
constexpr const char* firstPayload = "_0";

Json object(const char* key, Json value)
{
    auto document = Json::object();
    document[key] = std::move(value);
    return document;
}

Json plain(const char* key) { return object(key, Json::object()); }

Result<Action, JsonProblem> decodeKeystroke(const Json& payload)
{
    const auto keystroke = fromJson<MouseAction::SendKeystroke>(payload);
    if (!keystroke)
        return fail(within(sendKeystroke, keystroke.error()));
    return Action(*keystroke);
}

Result<Action, JsonProblem> decodeShellCommand(const Json& payload)
{
    const bool isObject = payload.is_object();
    if (isObject && !payload.contains(firstPayload))
        return fail(within(runShellCommand, JsonProblem{firstPayload, "is missing"}));
    const auto command = fromJson<std::string>(isObject ? payload[firstPayload] : payload);
    if (!command)
        return fail(within(
            runShellCommand, isObject ? within(firstPayload, command.error()) : command.error()));
    return Action(MouseAction::RunShellCommand{*command});
}

} // namespace

Json JsonCoding<MouseAction::Any>::encode(const MouseAction::Any& action)
{
    return match(
        action, [](const MouseAction::MissionControl&) { return plain("missionControl"); },
        [](const MouseAction::Back&) { return plain("back"); },
        [](const MouseAction::Forward&) { return plain("forward"); },
        [](const MouseAction::ShowDesktop&) { return plain("showDesktop"); },
        [](const MouseAction::SwitchSpaceLeft&) { return plain("switchSpaceLeft"); },
        [](const MouseAction::SwitchSpaceRight&) { return plain("switchSpaceRight"); },
        [](const MouseAction::SendKeystroke& keystroke) {
            return object(sendKeystroke, toJson(keystroke));
        },
        [](const MouseAction::RunShellCommand& shell) {
            return object(runShellCommand, object(firstPayload, shell.command));
        });
}

Result<MouseAction::Any, JsonProblem> JsonCoding<MouseAction::Any>::decode(const Json& document)
{
    if (!document.is_object())
        return fail(JsonProblem{"", "is not an object"});
    for (const auto& [key, action] : plainCases())
        if (document.contains(key))
            return action;
    if (const auto payload = document.find(sendKeystroke); payload != document.end())
        return decodeKeystroke(*payload);
    if (const auto payload = document.find(runShellCommand); payload != document.end())
        return decodeShellCommand(*payload);
    return fail(JsonProblem{"", "Unknown mouse action"});
}

} // namespace brindlex
