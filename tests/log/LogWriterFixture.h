#pragma once

#include "log/LogWriter.h"
#include "platform/simulated/SimulatedAppGroupContainer.h"
#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedQueue.h"
#include "platform/simulated/SimulatedSystemLog.h"
#include "support/basics/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace brindlex {

/// A writer in a container of its own, whose queue works when it is told to, at the time `launch`.
struct LogWriterTest : testing::Test {
    static constexpr Date launch = Date::fromUnixTime(1'794'795'385.123);

    static LogCall call(std::string_view message, LogLevel level = LogLevel::info,
        Log::Subsystem subsystem = Log::Subsystem::app)
    {
        constexpr CallSite site{"src/app/AppLifecycleCoordinator.cpp", 63};
        return {level, subsystem, logCategory::lifecycle, message, site};
    }

    /// What a call at `launch` becomes in the file.
    static std::string line(const std::string& message, const std::string& level = "INFO  ")
    {
        return "2026-11-16T02:16:25.123Z " + level
            + " [lifecycle] Brindlex/AppLifecycleCoordinator:63 — " + message + "\n";
    }

    std::string content(const std::string& name = "com.brindlex.Brindlex.app.log") const
    {
        return contentOf(logs / name);
    }

    TemporaryFolder folder;
    std::filesystem::path logs = folder.path() / "Logs";
    SimulatedAppGroupContainer container{folder.path()};
    SimulatedSystemLog systemLog;
    SimulatedClock clock{launch};
    SimulatedQueue queue;
    std::shared_ptr<LogWriter> writer
        = std::make_shared<LogWriter>(queue, container, systemLog, clock);
};

} // namespace brindlex
