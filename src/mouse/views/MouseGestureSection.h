#pragma once

#include "mouse/views/MouseBindingSection.h"
#include "ui/controls/StepSlider.h"

namespace brindlex {

/// What drags with a button held do, and how far they have to go.
class MouseGestureSection : public MouseBindingSection<MouseGestureBinding> {
public:
    MouseGestureSection(Page& page, const ViewContext& context, MouseSettings& settings,
        const KeyRecording& recording);

    void show();

private:
    MouseSettings& settings_;
    StepSlider* const distance_;
};

} // namespace brindlex
