#pragma once

#include "mouse/MouseClickBinding.h"
#include "mouse/MouseGestureBinding.h"
#include "mouse/views/MouseActionPicker.h"
#include "ui/controls/Chooser.h"
#include "ui/controls/Row.h"

#include <functional>

namespace brindlex {

/// A binding as a sentence: button, direction if it has one, arrow, action, keys.
template <typename Binding>
class MouseBindingRow : public Row {
public:
    struct Actions {
        std::function<void(const Binding&)> change{};
        std::function<void()> remove{};
    };

    MouseBindingRow(const ViewContext& context, const KeyRecording& recording,
        const Binding& binding, Actions actions);

    void show(const Binding& binding);
    void focusChooser() { button_->setFocus(Qt::OtherFocusReason); }

private:
    void change(const std::function<void(Binding&)>& change);

    const ViewContext context_;
    const Actions actions_;
    Binding binding_;
    Chooser* const button_;
    Chooser* direction_ = nullptr;
    MouseActionPicker* const action_;
};

extern template class MouseBindingRow<MouseClickBinding>;
extern template class MouseBindingRow<MouseGestureBinding>;

using MouseClickBindingRow = MouseBindingRow<MouseClickBinding>;
using MouseGestureBindingRow = MouseBindingRow<MouseGestureBinding>;

} // namespace brindlex
