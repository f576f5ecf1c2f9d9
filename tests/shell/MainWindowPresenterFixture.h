#pragma once

#include "platform/simulated/SimulatedComputer.h"
#include "shell/MainWindowPresenter.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace brindlex {

/// A presenter on a desktop that has windows of the main scene, and brings none forward by itself.
class MainWindowPresenterFixture : public testing::Test {
protected:
    MainWindowPresenterFixture()
    {
        windows.addScene("main");
        windows.setDelay({});
        journal.take();
    }

    void giveAction()
    {
        presenter.setOpenMainWindowAction([this] { windows.open("main"); });
    }
    /// Opens the window without the presenter.
    ProgramWindow openWindow()
    {
        windows.open("main");
        return *windows.window("main");
    }
    bool isInFront() const
    {
        const auto window = windows.window("main");
        return window && windows.isInFront(*window);
    }
    /// How often the window was to come to the front since the last call.
    long tries()
    {
        const auto entries = journal.take();
        return std::ranges::count(entries, "bring forward main");
    }

    SimulatedJournal journal;
    SimulatedComputer computer{{.journal = &journal}};
    SimulatedMainThread& mainThread = computer.mainThread;
    SimulatedProgramWindows& windows = computer.programWindows;
    SimulatedProgramActivation& activation = computer.activation;
    MainWindowPresenter presenter{windows, activation, mainThread};
};

} // namespace brindlex
