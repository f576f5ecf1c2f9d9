#pragma once

#include "mouse/MouseAction.h"
#include "mouse/MouseActionEffect.h"

#include <span>
#include <string_view>

namespace brindlex {

/// What there is to know of an action without payload.
struct PlainMouseAction {
    MouseAction::Plain action{};
    /// Under which it is stored.
    const char* key = nullptr;
    std::string_view logLabel{};
    MouseActionEffect::Any effect{};
};

/// One row for each action, in the order in which reading looks for the keys.
std::span<const PlainMouseAction> plainMouseActions();

/// The row of the action.
const PlainMouseAction& plainMouseAction(MouseAction::Plain action);

} // namespace brindlex
