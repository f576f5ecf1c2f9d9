#pragma once

#include "mouse/views/MouseBindingSection.h"
#include "mouse/views/MouseDisabledAppsSection.h"
#include "mouse/views/MouseGestureSection.h"
#include "mouse/views/MouseScrollSection.h"
#include "ui/controls/Page.h"

namespace brindlex {

/// The settings of the mouse. It follows what anybody changes of them while it is there; its
/// arguments outlive it.
class MouseSettingsScreen : public Page {
public:
    MouseSettingsScreen(const ViewContext& context, MouseSettings& settings,
        MouseConfigStore& store, const KeyRecording& recording,
        const ApplicationChoosing& chooseApplication);

private:
    MouseClickSection click_;
    MouseGestureSection gesture_;
    MouseScrollSection scroll_;
    MouseDisabledAppsSection disabledApps_;
    Subscription changes_;
};

} // namespace brindlex
