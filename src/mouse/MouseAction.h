#pragma once

#include "eventtap/ModifierSet.h"
#include "foundation/Cases.h"
#include "foundation/JsonForm.h"
#include "foundation/Result.h"

#include <cstdint>
#include <string>

namespace brindlex {

/// What a binding makes the computer do.
struct MouseAction {
    /// The actions without payload; what there is to know of each is its row in
    /// `PlainMouseActions.h`.
    enum class Plain {
        missionControl,
        back,
        forward,
        showDesktop,
        switchSpaceLeft,
        switchSpaceRight,
    };
    /// A press of a key by its virtual key code; a negative code is a key not yet chosen.
    struct SendKeystroke {
        std::int64_t keyCode = 0;
        ModifierSet modifiers{};

        bool operator==(const SendKeystroke&) const = default;

        static constexpr auto jsonForm()
        {
            return std::tuple{
                required("keyCode", &SendKeystroke::keyCode),
                required("modifiers", &SendKeystroke::modifiers),
            };
        }
    };
    struct RunShellCommand {
        std::string command{};

        bool operator==(const RunShellCommand&) const = default;

        static constexpr auto jsonForm()
        {
            return std::tuple{required("_0", &RunShellCommand::command)};
        }
    };

    using Any = Cases<Plain, SendKeystroke, RunShellCommand>;
};

/// Stored as an object with one key, the case's name: `{"back":{}}`,
/// `{"sendKeystroke":{"keyCode":49,"modifiers":1}}`, `{"runShellCommand":{"_0":"echo hi"}}`.
///
/// Also read: any value at the key of a case without payload, `{"runShellCommand":"echo hi"}`, and
/// the key "launchpad" of an action that is gone, which becomes `missionControl`.
template <>
struct JsonCoding<MouseAction::Any> {
    static Json encode(const MouseAction::Any& action);
    static Result<MouseAction::Any, JsonProblem> decode(const Json& document);
};

} // namespace brindlex
