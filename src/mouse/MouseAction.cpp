#include "mouse/MouseAction.h"

#include "foundation/JsonCoding.h"
#include "mouse/PlainMouseActions.h"

#include <optional>
#include <utility>

namespace brindlex {
namespace {

using Action = MouseAction::Any;

/// The key of an action that is gone; it becomes `missionControl`.
constexpr const char* launchpad = "launchpad";
constexpr const char* sendKeystroke = "sendKeystroke";
constexpr const char* runShellCommand = "runShellCommand";

Json object(const char* key, Json value)
{
    auto document = Json::object();
    document[key] = std::move(value);
    return document;
}

/// The action without payload whose key the document has.
std::optional<MouseAction::Plain> decodePlain(const Json& document)
{
    if (document.contains(launchpad))
        return MouseAction::Plain::missionControl;
    for (const auto& row : plainMouseActions())
        if (document.contains(row.key))
            return row.action;
    return {};
}

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
        action,
        [](MouseAction::Plain plain) {
            return object(plainMouseAction(plain).key, Json::object());
        },
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
    if (const auto plain = decodePlain(document))
        return Action(*plain);
    if (const auto payload = document.find(sendKeystroke); payload != document.end())
        return decodePayload<MouseAction::SendKeystroke>(sendKeystroke, *payload);
    if (const auto payload = document.find(runShellCommand); payload != document.end())
        return decodeShellCommand(*payload);
    return fail(JsonProblem{"", "Unknown mouse action"});
}

} // namespace brindlex
