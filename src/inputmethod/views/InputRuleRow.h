#pragma once

#include "inputmethod/InputMethodSettings.h"
#include "ui/controls/Chooser.h"
#include "ui/controls/Row.h"
#include "ui/controls/ViewContext.h"

#include <functional>
#include <string>

namespace brindlex {

/// A rule in a list: what it is for, which input source it gives, and a cross.
class InputRuleRow : public Row {
public:
    struct Actions {
        std::function<void(const std::string& inputSourceID)> choose{};
        std::function<void()> remove{};
    };

    /// `name` says what the rule is for.
    InputRuleRow(const ViewContext& context, const InputMethodSettings& settings,
        const QIcon& picture, int pictureSize, const QString& name, const Actions& actions);

    /// Shows the source that the rule names, with a warning where it is not there, and else what
    /// there is to say of the rule, if anything.
    void show(const std::string& inputSourceID, const QString& words = {});

    /// Puts the focus where the source is chosen.
    void focusChooser() { chooser_->setFocus(Qt::OtherFocusReason); }

private:
    const ViewContext context_;
    const InputMethodSettings& settings_;
    Chooser* const chooser_;
};

} // namespace brindlex
