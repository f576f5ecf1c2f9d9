#pragma once

#include "clipboard/ClipboardSettings.h"
#include "clipboard/views/ClipboardClearRow.h"
#include "ui/controls/Page.h"
#include "ui/controls/TextLabel.h"

#include <filesystem>
#include <functional>

namespace brindlex {

/// How much is in the clipboard history, where it is, and a way to delete it.
class ClipboardHistorySection {
public:
    /// `openFolder` is called with the folder that the user wants to see.
    ClipboardHistorySection(Page& page, const ViewContext& context, ClipboardSettings& settings,
        const std::function<void(const std::filesystem::path&)>& openFolder);

    void show();

private:
    QString amount(const ClipboardHistoryMeasure& measure) const;

    const ViewContext context_;
    ClipboardSettings& settings_;
    TextLabel* const amount_;
    ClipboardClearRow* const clear_;
};

} // namespace brindlex
