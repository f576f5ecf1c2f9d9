#pragma once

#include "inputmethod/InputMethodSwitchCoordinator.h"
#include "support/basics/RecordedLog.h"
#include "support/switching/SimulatedDesktop.h"

#include <gtest/gtest.h>

#include <memory>

namespace brindlex {

/// A coordinator on a simulated desktop with two layouts and an editor in front.
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
        desktop.inputSources.install(SimulatedInputSources::keyboard(us, "English (US)"));
        desktop.inputSources.install(SimulatedInputSources::keyboard(german, "German"));
        desktop.applications.bringToFront(application(1, "editor"));
    }

    void change(const std::function<void(InputMethodConfig&)>& edit)
    {
        auto config = store.config().value();
        edit(config);
        store.setConfig(config);
    }

    void makeCoordinator()
    {
        coordinator = std::make_unique<InputMethodSwitchCoordinator>(store, smartStore,
            SwitchAbilities{desktop.mainThread, desktop.clock, desktop.applications,
                desktop.bundles, desktop.inputSources, desktop.browserPages});
        coordinator->onSwitch = [this](const std::string& label) { labels.push_back(label); };
    }

    void start()
    {
        makeCoordinator();
        coordinator->dispatch(SwitchEvent::Start{});
        desktop.mainThread.runUntilIdle();
    }

    std::string selected() { return desktop.inputSources.current()->id.value(); }

    std::vector<SmartInputMethodAppStats> stats() { return smartStore.config().value().appStats; }

    SimulatedSessionServices services;
    SimulatedDesktop desktop{services};
    InputMethodConfigStore store{desktop.defaults};
    SmartInputMethodConfigStore smartStore{desktop.defaults};
    std::vector<std::string> labels;
    RecordedLog log;
    std::unique_ptr<InputMethodSwitchCoordinator> coordinator;
};

} // namespace brindlex
