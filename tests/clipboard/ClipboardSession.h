#pragma once

#include "clipboard/ClipboardHistoryStoreFixture.h"
#include "clipboard/ClipboardSubsystem.h"
#include "platform/simulated/SimulatedApplicationActivating.h"
#include "platform/simulated/SimulatedApplications.h"
#include "platform/simulated/SimulatedEventPermissions.h"
#include "platform/simulated/SimulatedFilePreviewing.h"
#include "platform/simulated/SimulatedImageConverting.h"
#include "platform/simulated/SimulatedInput.h"
#include "platform/simulated/SimulatedKeyablePanel.h"
#include "platform/simulated/SimulatedKeyboard.h"
#include "platform/simulated/SimulatedPasteboard.h"
#include "platform/simulated/SimulatedPasting.h"
#include "platform/simulated/SimulatedProgramActivation.h"
#include "platform/simulated/SimulatedProgramInstances.h"
#include "platform/simulated/SimulatedScreenReading.h"
#include "platform/simulated/SimulatedUserFolders.h"

#include <memory>
#include <string>
#include <vector>

namespace brindlex {

/// The clipboard history on a simulated computer, whose history is in a real folder.
struct ClipboardSession {
    using Keys = ClipboardPreferenceKeys;
    using Processes = std::vector<ProcessIdentity>;
    using Texts = std::vector<std::string>;

    explicit ClipboardSession(SimulatedInput::TapPlace place = SimulatedInput::TapPlace::session)
        : input(place)
    {
    }

    /// Starts with texts in the history, of which the last stands first.
    void start(const Texts& texts = {})
    {
        for (const auto& text : texts)
            subsystem.store().add(textItem(text, ++copied));
        manager.start();
    }

    /// Lets the time pass until the preferences have been looked at and the panel is ready.
    void settle() { mainThread.advance(1); }

    template <typename Key>
    void set(Key ClipboardPreferenceKeys::*key, const typename Key::Value& value)
    {
        writePreference(defaults, ClipboardPreferenceKeys{}.*key, value);
    }

    /// Presses a key with these modifiers and releases it; whether the press goes no further.
    bool takes(std::int64_t keyCode, ModifierSet modifiers)
    {
        keyboard.holdModifiers(modifiers.eventFlags());
        const auto verdict = keyboard.press(keyCode);
        keyboard.release(keyCode);
        keyboard.holdModifiers(0);
        return verdict == EventVerdict::swallow;
    }
    bool takesHotkey() { return takes(virtualKey::v, ModifierSet::command | ModifierSet::shift); }

    /// Opens the picker and chooses the item at the index.
    void choose(std::size_t index)
    {
        manager.showPicker();
        picker().commitItem(index);
    }

    void bringToFront(std::int64_t process)
    {
        applications.bringToFront(
            {ProcessIdentity{process}, "org.example.Application" + std::to_string(process)});
    }

    ClipboardPicker& picker() { return *hosted.back(); }
    Texts visible() { return textsOf(picker().content().value().items); }

    /// How often somebody has been told to paste, by the program.
    int timesPasted() const
    {
        int times = 0;
        for (const auto& event : input.delivered())
            times += event.type == EventType::keyDown
                    && event.value(EventField::eventSourceUserData) == pasteEventTag
                ? 1
                : 0;
        return times;
    }

    const std::string startedLine = "INFO [clipboard] ClipboardHistoryMonitor: started";
    RecordedLog log;
    TemporaryFolder temporary;
    SimulatedClock clock{clipboardDay};
    SimulatedMainThread mainThread{clock};
    SimulatedQueue queue;
    SimulatedUserDefaults defaults;
    SimulatedUserFolders userFolders{temporary.path()};
    SimulatedPasteboard pasteboard{mainThread};
    SimulatedImageConverting images;
    SimulatedInput input;
    SimulatedKeyboard keyboard{input};
    SimulatedPasting pasting{input};
    SimulatedApplications applications;
    SimulatedApplicationActivating activating{applications};
    SimulatedSession session;
    SimulatedProgramInstances instances{session, "org.example.Program"};
    SimulatedKeyablePanel panel{mainThread};
    SimulatedScreenReading screens;
    SimulatedFilePreviewing previewing;
    SimulatedEventPermissions permissions;
    SimulatedProgramActivation activation;
    GlobalEventTap tap{input, permissions, activation};
    /// The pickers that were brought to the panel, in order.
    std::vector<std::shared_ptr<ClipboardPicker>> hosted;
    ClipboardSubsystem subsystem{{
                                     .mainThread = mainThread,
                                     .clock = clock,
                                     .defaults = defaults,
                                     .userFolders = userFolders,
                                     .indexQueue = queue,
                                     .pasteboard = pasteboard,
                                     .images = images,
                                     .pasting = pasting,
                                     .applications = applications,
                                     .activating = activating,
                                     .instances = instances,
                                     .panel = panel,
                                     .screens = screens,
                                     .previewing = previewing,
                                 },
        tap, TextFolding(), [this](const std::shared_ptr<ClipboardPicker>& picker) {
            hosted.push_back(picker);
            return Size{600, 400};
        }};
    ClipboardManager& manager = subsystem.manager();
    Seconds copied = 0;
};

} // namespace brindlex
