#pragma once

#include "foundation/Date.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>

namespace brindlex {

/// The importance of a log line. `raw` is never written: it marks a line that a reader could not
/// parse.
enum class LogLevel { info, notice, warn, error, raw };

/// The form in which a level stands in a line: "INFO", "NOTICE", "WARN", "ERROR", "RAW".
std::string_view rawValue(LogLevel level);

/// The place in the sources from which a log call comes.
struct CallSite {
    std::string_view file;
    int line = 0;

    static constexpr CallSite here(const char* file = __builtin_FILE(), int line = __builtin_LINE())
    {
        return {file, line};
    }
};

class LogSink;

/// The one logging facility: each call goes to the system log and, as one line, to the subsystem's
/// file in the container.
///
/// Callable from any thread; a call never waits for a file and never fails. Until `install` and
/// after the sink has gone, calls are dropped.
class Log {
public:
    /// Whose file a line goes to.
    enum class Subsystem { app, finder, voice };

    Log() = delete;

    static void info(std::string_view message, std::string_view category,
        CallSite site = CallSite::here(), Subsystem subsystem = Subsystem::app);
    static void notice(std::string_view message, std::string_view category,
        CallSite site = CallSite::here(), Subsystem subsystem = Subsystem::app);
    static void warn(std::string_view message, std::string_view category,
        CallSite site = CallSite::here(), Subsystem subsystem = Subsystem::app);
    static void error(std::string_view message, std::string_view category,
        CallSite site = CallSite::here(), Subsystem subsystem = Subsystem::app);

    /// Removes old log files, at most once an hour.
    static void prune(Date now);

    /// The subsystem's current file; nothing without a container.
    static std::optional<std::filesystem::path> fileURL(Subsystem subsystem);

    /// Sets where calls go; nothing ends it. Returns the sink that was installed before.
    static std::shared_ptr<LogSink> install(std::shared_ptr<LogSink> sink);
};

/// "com.brindlex.Brindlex.app" and so on: the name of the subsystem in the system log, and with the
/// suffix ".log" that of its file.
std::string_view rawValue(Log::Subsystem subsystem);

/// One log call.
struct LogCall {
    LogLevel level = LogLevel::info;
    Log::Subsystem subsystem = Log::Subsystem::app;
    std::string_view category{};
    std::string_view message{};
    CallSite site{};
};

/// Where log calls go. All operations are callable from any thread.
class LogSink {
public:
    virtual ~LogSink() = default;

    virtual void write(const LogCall& call) = 0;
    virtual void prune(Date now) = 0;
    virtual std::optional<std::filesystem::path> fileURL(Log::Subsystem subsystem) = 0;
};

/// The categories in use.
namespace logCategory {

inline constexpr std::string_view lifecycle = "lifecycle";
inline constexpr std::string_view mouse = "mouse";
inline constexpr std::string_view clipboard = "clipboard";
inline constexpr std::string_view screenshot = "screenshot";
inline constexpr std::string_view ocr = "ocr";
inline constexpr std::string_view inputMethod = "input-method";
inline constexpr std::string_view ui = "ui";
inline constexpr std::string_view finderBridge = "finder-bridge";
inline constexpr std::string_view finderExtension = "finder-extension";
inline constexpr std::string_view finderConfig = "finder-config";
inline constexpr std::string_view finderLocalization = "finder-localization";

} // namespace logCategory

} // namespace brindlex
