#pragma once

#include "inputmethod/InputMethodSubsystem.h"
#include "platform/simulated/SimulatedComputer.h"
#include "support/basics/RecordedLog.h"

#include <gtest/gtest.h>

namespace brindlex {

/// A coordinator on a simulated computer with two layouts and an editor in front.
class InputMethodSwitchCoordinatorTest : public testing::Test {
protected:
    inline static const std::string us = "xkb:us::eng";
    inline static const std::string german = "xkb:de::deu";
    inline static const std::string browser = "org.chromium.Chromium";

    static RunningApplication application(std::int64_t process, const std::string& id)
    {
        return {ProcessIdentity{process}, id, {}, id + " name"};
    }

    static InputMethodRule rule(const std::string& bundleID, const std::string& source)
    {
        return {Uuid::random(), {bundleID, bundleID, {}}, source};
    }

    InputMethodSwitchCoordinatorTest()
    {
        computer.inputSources.install(SimulatedInputSources::keyboard(us, "English (US)"));
        computer.inputSources.install(SimulatedInputSources::keyboard(german, "German"));
        computer.applications.bringToFront(application(1, "editor"));
    }

    void change(const std::function<void(InputMethodConfig&)>& edit)
    {
        auto config = store.config().value();
        edit(config);
        store.setConfig(config);
    }

    void makeCoordinator()
    {
        coordinator = &subsystem.switchCoordinator();
        coordinator->onSwitch = [this](const std::string& label) { labels.push_back(label); };
    }

    void start()
    {
        makeCoordinator();
        coordinator->dispatch(SwitchEvent::Start{});
        computer.mainThread.runUntilIdle();
    }

    std::string selected() { return computer.inputSources.current()->id.value(); }

    std::vector<SmartInputMethodAppStats> stats() { return smartStore.config().value().appStats; }

    SimulatedComputer computer;
    InputMethodSubsystem subsystem{computer.platform()};
    InputMethodConfigStore& store = subsystem.configStore();
    SmartInputMethodConfigStore& smartStore = subsystem.smartConfigStore();
    std::vector<std::string> labels;
    RecordedLog log;
    /// Null until it is made.
    InputMethodSwitchCoordinator* coordinator = nullptr;
};

} // namespace brindlex
