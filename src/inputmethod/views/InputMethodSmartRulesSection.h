#pragma once

#include "inputmethod/InputMethodSettings.h"
#include "inputmethod/views/InputMethodSmartStatsRows.h"
#include "ui/controls/Chooser.h"
#include "ui/controls/Page.h"
#include "ui/controls/ToggleSwitch.h"

namespace brindlex {

/// What may be learned from the user, and what was.
class InputMethodSmartRulesSection {
public:
    InputMethodSmartRulesSection(
        Page& page, const ViewContext& context, InputMethodSettings& settings);

    void show();

private:
    template <typename Value>
    Chooser* makeChooser(const QString& name, Value SmartInputMethodConfig::*field);
    void makeRows(Card& card);
    std::vector<Chooser::Option> priorities() const;
    std::vector<Chooser::Option> limits() const;

    const ViewContext context_;
    InputMethodSettings& settings_;
    ToggleSwitch* const enabled_;
    ToggleSwitch* const learningEnabled_;
    Chooser* const priority_;
    Chooser* const threshold_;
    Chooser* const window_;
    Chooser* const limit_;
    InputMethodSmartStatsRows stats_;
};

} // namespace brindlex
