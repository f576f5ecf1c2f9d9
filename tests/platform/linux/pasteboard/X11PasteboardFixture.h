#pragma once

#include "platform/linux/pasteboard/X11Pasteboard.h"
#include "support/basics/Eventually.h"
#include "support/clipboard/SelectionOwner.h"
#include "support/loops/QtLoop.h"
#include "support/processes/CommandOutput.h"
#include "support/screen/VirtualDesktop.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

namespace brindlex {

/// A pasteboard that is observed, on a real server, with short limits.
struct X11PasteboardFixture : testing::Test {
    X11PasteboardFixture()
    {
        makePasteboard({.silence = std::chrono::milliseconds(200),
            .owner = std::chrono::seconds(5),
            .bytes = 1 << 20,
            .handover = std::chrono::milliseconds(200)});
    }

    void makePasteboard(const PasteboardLimits& limits)
    {
        observed.reset();
        pasteboard = std::make_unique<X11Pasteboard>(loop.mainThread(), limits);
        observed = pasteboard->observeChanges([] {});
    }

    /// An application copies the contents, by target; returns when they have been read.
    void copy(const std::map<std::string, std::string>& contents)
    {
        const auto before = pasteboard->changeCount();
        owner = std::make_unique<SelectionOwner>(SelectionOwner::Offer{contents});
        EXPECT_TRUE(loop.runUntil([&] { return pasteboard->changeCount() > before; }));
    }

    /// What an application receives that pastes the target; "nothing" where there is no such form.
    static std::string read(const std::string& target)
    {
        const auto output
            = outputOf({"xclip", "-selection", "clipboard", "-out", "-target", target});
        return output.status == 0 ? output.text : "nothing";
    }

    VirtualDesktop desktop{{.windowManager = WindowManager::none, .sessionBus = false}};
    QtLoop loop;
    std::unique_ptr<X11Pasteboard> pasteboard;
    Subscription observed;
    std::unique_ptr<SelectionOwner> owner;
};

} // namespace brindlex
