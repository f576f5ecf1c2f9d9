#pragma once

#include "mouse/MouseSettings.h"
#include "ui/controls/Page.h"
#include "ui/controls/StepSlider.h"
#include "ui/controls/ToggleSwitch.h"

namespace brindlex {

/// What becomes of the notches of the wheel.
class MouseScrollSection {
public:
    MouseScrollSection(Page& page, const ViewContext& context, MouseSettings& settings);

    void show();

private:
    ToggleSwitch* makeSwitch(const QString& name, bool MouseScrollConfig::*field);

    const ViewContext context_;
    MouseSettings& settings_;
    ToggleSwitch* const smooth_;
    StepSlider* const duration_;
    StepSlider* const speed_;
    StepSlider* const acceleration_;
    ToggleSwitch* const invertVertical_;
    ToggleSwitch* const invertHorizontal_;
};

} // namespace brindlex
