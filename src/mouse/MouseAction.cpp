#include "mouse/MouseAction.h"

#include "foundation/JsonCoding.h"

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

Json object(const char* key, Json value)
{
    auto document = Json::object();
    document[key] = std::move(value);
    return document;
}

Json plain(const char* key) { return object(key, Json::object()); }

template <typename Payload>
Result<Action, JsonProblem> decodePayload(const char* key, const Json& document)
{
    const auto payload = fromJson<Payload>(document);
    if (!payload)
        return fail(within(key, payload.error()));
    return Action(*payload);
}

Result<Action, JsonProblem> decodeShellCommand(const Json& document)
{
    if (const auto command = fromJson<std::string>(document))
        return Action(MouseAction::RunShellCommand{*command});
    return decodePayload<MouseAction::RunShellCommand>(runShellCommand, document);
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
            return object(runShellCommand, toJson(shell));
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
        return decodePayload<MouseAction::SendKeystroke>(sendKeystroke, *payload);
    if (const auto payload = document.find(runShellCommand); payload != document.end())
        return decodeShellCommand(*payload);
    return fail(JsonProblem{"", "Unknown mouse action"});
}

} // namespace brindlex
