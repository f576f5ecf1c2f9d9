#pragma once

#include "inputmethod/SwitchReducer.h"
#include "support/switching/SwitchComputer.h"
#include "support/switching/SwitchRecords.h"
#include "support/switching/SwitchText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex {

/// A computer with an editor that has a rule for German, a mail program without one and a browser
/// with a website rule, and the machine after its last event.
struct SwitchReducer : testing::Test {
    using Effects = std::vector<SwitchEffect::Any>;
    using Event = SwitchEvent;
    using Effect = SwitchEffect;
    using Lifecycle = SwitchState::Lifecycle;
    using Context = InputMethodAutoSwitchContext;
    using Texts = std::vector<std::string>;

    inline static const std::string english = "english";
    inline static const std::string german = "german";
    inline static const std::string french = "french";
    inline static const std::string editor = "com.example.Editor";
    inline static const std::string mail = "com.example.Mail";
    inline static const std::string browser = "com.example.Browser";

    SwitchReducer()
    {
        computer.inputSourceID = english;
        computer.names = {{english, "English"}, {german, "Deutsch"}, {french, "Français"}};
        computer.browsers = {browser};
        computer.frontmostBundleID = mail;
        config.rules = {appRule(editor, german)};
        config.domainRules = {websiteRule("example.com", french)};
    }

    Effects reduce(const SwitchEvent::Any& event)
    {
        computer.calls.clear();
        computer.selections.clear();
        return brindlex::reduce(event, state, smartConfig, config, computer.environment());
    }

    Effects activate(const std::string& bundleID) { return reduce(Event::AppActivated{bundleID}); }

    Effects tick(const std::optional<std::string>& host)
    {
        return reduce(Event::BrowserContextTick{host});
    }

    /// The echo of an own selection.
    void echo() { EXPECT_EQ(reduce(Event::InputSourceChanged{}), Effects()); }

    void userSelects(const std::string& inputSourceID)
    {
        computer.inputSourceID = inputSourceID;
        EXPECT_EQ(reduce(Event::InputSourceChanged{}), Effects());
    }

    /// Observing, with a tool in front that no rule knows.
    void begin(Lifecycle lifecycle = Lifecycle::observing)
    {
        state.lifecycle = lifecycle;
        state.lastInputSourceID = computer.inputSourceID;
    }

    /// The recorded sources of an application, oldest first.
    Texts learned(const std::string& bundleID) const
    {
        for (const auto& stats : smartConfig.appStats)
            if (stats.app.bundleID == bundleID)
                return sourcesOf(stats.samples);
        return {};
    }

    SwitchComputer computer;
    InputMethodConfig config;
    SmartInputMethodConfig smartConfig;
    SwitchState state;
};

} // namespace brindlex
