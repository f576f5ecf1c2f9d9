#include "clipboard/ClipboardPickerPanelController.h"

#include "clipboard/ClipboardPanelFrame.h"
#include "clipboard/ClipboardQuickLookPreviewer.h"

#include <utility>

namespace brindlex {

ClipboardPickerPanelController::ClipboardPickerPanelController(
    const Abilities& abilities, const ClipboardPicker::Parts& parts, Hosting host)
    : abilities_(abilities), parts_(parts), host_(std::move(host)),
      keyObserver_(abilities.panel.observeDidResignKey([this] {
          if (!parts_.previewer.isPreviewing())
              dismiss();
      })),
      quickLookCloseObserver_(parts.previewer.observeDidClose([this] {
          if (abilities_.panel.isVisible())
              abilities_.panel.makeKeyAndOrderFront();
      })),
      workspaceActivationObserver_(abilities.applications.observeActivation(
          [this](const std::optional<RunningApplication>& application) {
              const bool isOther
                  = application && application->processIdentifier != abilities_.instances.current();
              if (isOther && abilities_.panel.isVisible())
                  dismiss();
          }))
{
}

void ClipboardPickerPanelController::show(ClipboardPicker::Outcomes outcomes)
{
    auto& panel = abilities_.panel;
    onDismiss_ = outcomes.onDismiss;
    warming_.reset();
    isBuilt_ = true;
    const bool fades = !panel.isVisible() || panel.alpha() == 0;
    if (fades)
        panel.setAlpha(0);
    place(host(hidingBefore(std::move(outcomes))));
    panel.makeKeyAndOrderFront();
    outsideClickMonitor_ = panel.observePressOutside([this] { dismiss(); });
    if (fades)
        fadeInSoon();
}

void ClipboardPickerPanelController::warmUp()
{
    if (isBuilt_)
        return;
    isBuilt_ = true;
    abilities_.panel.setAlpha(0);
    place(host({}));
    abilities_.panel.orderFront();
    warming_ = abilities_.mainThread.after(0, [this] { finishWarmUp(); });
}

/// Hosts a new picker and ends the one before, whose view has gone then.
Size ClipboardPickerPanelController::host(ClipboardPicker::Outcomes outcomes)
{
    const auto before
        = std::exchange(picker_, std::make_shared<ClipboardPicker>(parts_, std::move(outcomes)));
    const auto size = host_(picker_);
    if (before)
        before->end();
    return size;
}

/// The outcomes of a picker that takes the panel away first.
ClipboardPicker::Outcomes ClipboardPickerPanelController::hidingBefore(
    ClipboardPicker::Outcomes outcomes)
{
    return {
        .onSelect =
            [this, onSelect = std::move(outcomes.onSelect)](const SharedClipboardItem& item) {
                onDismiss_ = nullptr;
                hide();
                onSelect(item);
            },
        .onDismiss = [this] { dismiss(); },
    };
}

void ClipboardPickerPanelController::place(Size size)
{
    const Rect inPlace{abilities_.panel.frame().origin, size};
    abilities_.panel.setFrame(
        clipboardPanelFrame(size, abilities_.screens.layout()).value_or(inPlace));
}

void ClipboardPickerPanelController::finishWarmUp()
{
    warming_.reset();
    abilities_.panel.displayIfNeeded();
    abilities_.panel.orderOut();
    picker_->end();
}

void ClipboardPickerPanelController::fadeInSoon()
{
    fade_ = abilities_.mainThread.after(0, [this] {
        fade_.reset();
        abilities_.panel.displayIfNeeded();
        abilities_.panel.fadeIn();
    });
}

void ClipboardPickerPanelController::hide()
{
    outsideClickMonitor_.reset();
    fade_.reset();
    abilities_.panel.orderOut();
    // The release of the key that would end it may go to somebody else now.
    parts_.previewer.close();
    if (picker_)
        picker_->end();
}

void ClipboardPickerPanelController::dismiss()
{
    const auto onDismiss = std::exchange(onDismiss_, nullptr);
    hide();
    if (onDismiss)
        onDismiss();
}

} // namespace brindlex
