#pragma once

#include "inputmethod/views/InputRuleRow.h"
#include "ui/controls/EmptyState.h"
#include "ui/controls/KeyedRows.h"
#include "ui/controls/Page.h"
#include "ui/controls/SearchField.h"
#include "ui/controls/SuggestionList.h"
#include "ui/controls/ToggleSwitch.h"

namespace brindlex {

/// The rules for websites, with the field in which one is added.
class InputMethodDomainRulesSection {
public:
    InputMethodDomainRulesSection(
        Page& page, const ViewContext& context, InputMethodSettings& settings);

    void show();

private:
    void makeField(Card& card);
    InputRuleRow* makeRow(const Uuid& id);
    void suggest(const QString& typed);
    void add(const QString& text);
    void remove(const Uuid& id);

    Page& page_;
    const ViewContext context_;
    InputMethodSettings& settings_;
    ToggleSwitch* const enabled_;
    EmptyState* const empty_;
    SearchField* const field_;
    SuggestionList* const suggestions_;
    Card& card_;
    /// Behind the switch.
    KeyedRows<Uuid, InputRuleRow> rows_;
};

} // namespace brindlex
