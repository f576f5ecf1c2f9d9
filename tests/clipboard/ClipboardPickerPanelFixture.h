#pragma once

#include "clipboard/ClipboardPickerFixture.h"
#include "clipboard/ClipboardPickerPanelController.h"
#include "platform/simulated/SimulatedApplications.h"
#include "platform/simulated/SimulatedKeyablePanel.h"
#include "platform/simulated/SimulatedProgramInstances.h"
#include "platform/simulated/SimulatedScreenReading.h"

#include <memory>
#include <string>
#include <vector>

namespace brindlex {

/// A history of two texts, and a controller with a panel of its own.
struct ClipboardPickerPanelFixture : ClipboardPickerFixture {
    ClipboardPickerPanelFixture() { copyTexts({"second", "first"}); }

    /// Shows a picker whose outcomes are noted under its name.
    void show(const std::string& name = "it")
    {
        controller.show({
            .onSelect =
                [this, name](const SharedClipboardItem& item) {
                    outcomes.push_back(
                        name + (panel.isVisible() ? " too early" : "") + " selects " + *item->text);
                },
            .onDismiss =
                [this, name] {
                    outcomes.push_back(
                        name + (panel.isVisible() ? " too early" : "") + " is dismissed");
                },
        });
    }

    /// Shows a picker and lets it become solid.
    void showSolid()
    {
        show();
        mainThread.advance(1);
        panel.takeCalls();
    }

    ClipboardPicker& picker() { return *hosted.back(); }
    Texts visible() { return textsOf(picker().content().value().items); }
    void bringToFront(std::int64_t process)
    {
        applications.bringToFront({ProcessIdentity{process}, "org.example.Application"});
    }

    SimulatedSession session;
    SimulatedProgramInstances instances{session, "org.example.Program"};
    SimulatedApplications applications;
    SimulatedScreenReading screens;
    SimulatedKeyablePanel panel{mainThread};
    /// The pickers that were brought to the panel, in order.
    std::vector<std::shared_ptr<ClipboardPicker>> hosted;
    Texts outcomes;
    ClipboardPickerPanelController controller{{panel, screens, applications, instances, mainThread},
        parts, [this](const std::shared_ptr<ClipboardPicker>& picker) {
            hosted.push_back(picker);
            return Size{600, 400};
        }};
    const std::string inPlace = "frame 500,243.4 600x400";
};

} // namespace brindlex
