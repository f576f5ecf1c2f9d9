#pragma once

#include "clipboard/views/ClipboardHistorySection.h"
#include "clipboard/views/ClipboardOptionsSection.h"
#include "ui/controls/Page.h"

namespace brindlex {

/// The settings of the clipboard history. It follows what anybody changes of them while it is
/// there, and has the history measured while it is to be seen; its arguments outlive it.
class ClipboardSettingsScreen : public Page {
public:
    /// `openFolder` shows a folder in the file manager.
    ClipboardSettingsScreen(const ViewContext& context, ClipboardSettings& settings,
        const KeyRecording& recording,
        const std::function<void(const std::filesystem::path&)>& openFolder);
    ~ClipboardSettingsScreen() override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    ClipboardHistoryMeter& meter_;
    ClipboardOptionsSection options_;
    ClipboardHistorySection history_;
    Subscription preferenceChanges_;
    Subscription measureChanges_;
};

} // namespace brindlex
