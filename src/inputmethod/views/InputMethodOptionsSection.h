#pragma once

#include "inputmethod/InputMethodSettings.h"
#include "ui/controls/Page.h"
#include "ui/controls/ToggleSwitch.h"

namespace brindlex {

/// Whether input sources are switched at all, and whether that is shown.
class InputMethodOptionsSection {
public:
    InputMethodOptionsSection(
        Page& page, const ViewContext& context, InputMethodSettings& settings);

    void show();

private:
    InputMethodSettings& settings_;
    ToggleSwitch* const enabled_;
    ToggleSwitch* const showHUD_;
};

} // namespace brindlex
