#pragma once

#include "applications/views/ApplicationChoosing.h"
#include "inputmethod/views/InputRuleRow.h"
#include "ui/controls/EmptyState.h"
#include "ui/controls/KeyedRows.h"
#include "ui/controls/Page.h"

namespace brindlex {

/// The rules for applications.
class InputMethodRulesSection {
public:
    InputMethodRulesSection(Page& page, const ViewContext& context, InputMethodSettings& settings,
        ApplicationChoosing chooseApplication);

    void show();

private:
    InputRuleRow* makeRow(const Uuid& id);
    void add();
    void remove(const Uuid& id);

    Page& page_;
    const ViewContext context_;
    InputMethodSettings& settings_;
    const ApplicationChoosing chooseApplication_;
    EmptyState* empty_ = nullptr;
    QWidget* addRow_ = nullptr;
    Card& card_;
    KeyedRows<Uuid, InputRuleRow> rows_;
};

} // namespace brindlex
