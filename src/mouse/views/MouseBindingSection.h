#pragma once

#include "mouse/MouseSettings.h"
#include "mouse/views/MouseBindingRow.h"
#include "ui/controls/EmptyState.h"
#include "ui/controls/KeyedRows.h"
#include "ui/controls/Page.h"

#include <vector>

namespace brindlex {

/// A list of bindings, to which the user adds and from which the user removes.
template <typename Binding>
class MouseBindingSection {
public:
    /// What the settings do with bindings of this kind.
    struct Operations {
        const std::vector<Binding>& (*bindings)(const MouseConfig& config);
        Uuid (MouseSettings::*add)();
        void (MouseSettings::*replace)(const Binding& binding);
        void (MouseSettings::*remove)(const Uuid& id);
        void (MouseSettings::*restore)(const Binding& binding, std::size_t index);
    };
    struct Words {
        QString title{};
        QString description{};
        QString add{};
        QString empty{};
    };

    MouseBindingSection(Page& page, const ViewContext& context, MouseSettings& settings,
        const KeyRecording& recording, const Operations& operations, const Words& words);

    void show();

private:
    const std::vector<Binding>& bindings() const
    {
        return operations_.bindings(settings_.config());
    }
    MouseBindingRow<Binding>* makeRow(const Uuid& id);
    void add();
    void remove(const Uuid& id);

    Page& page_;
    const ViewContext context_;
    MouseSettings& settings_;
    const KeyRecording recording_;
    const Operations operations_;
    const QString title_;
    Card& card_;
    KeyedRows<Uuid, MouseBindingRow<Binding>> rows_;
    EmptyState* const empty_;
    QWidget* const addRow_;
};

extern template class MouseBindingSection<MouseClickBinding>;
extern template class MouseBindingSection<MouseGestureBinding>;

/// What presses of the middle and side buttons do.
class MouseClickSection : public MouseBindingSection<MouseClickBinding> {
public:
    MouseClickSection(Page& page, const ViewContext& context, MouseSettings& settings,
        const KeyRecording& recording);
};

} // namespace brindlex
