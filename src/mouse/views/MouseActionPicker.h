#pragma once

#include "eventtap/views/KeyRecorderField.h"
#include "mouse/MouseAction.h"
#include "ui/controls/Chooser.h"
#include "ui/controls/ViewContext.h"

#include <QWidget>

#include <functional>

namespace brindlex {

/// Chooses an action, and its key where it is a keystroke. The place of the key stays empty for
/// other actions, so that nothing moves.
class MouseActionPicker : public QWidget {
public:
    /// `changed` is called with the action that the user has chosen.
    MouseActionPicker(const ViewContext& context, const KeyRecording& recording,
        std::function<void(const MouseAction::Any&)> changed);

    void show(const MouseAction::Any& action);

private:
    const ViewContext context_;
    MouseAction::Any action_{};
    const std::function<void(const MouseAction::Any&)> changed_;
    Chooser* const actions_;
    KeyRecorderField* const keys_;
};

} // namespace brindlex
