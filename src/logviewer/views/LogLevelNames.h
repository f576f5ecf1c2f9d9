#pragma once

#include "log/Log.h"

#include <QString>

#include <array>

namespace brindlex {

/// The levels of a log, the least one first.
inline constexpr std::array logLevels{
    LogLevel::info, LogLevel::notice, LogLevel::warn, LogLevel::error, LogLevel::raw};

/// The name of a level, as it stands in the file.
inline QString nameOf(LogLevel level)
{
    switch (level) {
    case LogLevel::info:
        return QStringLiteral("INFO");
    case LogLevel::notice:
        return QStringLiteral("NOTICE");
    case LogLevel::warn:
        return QStringLiteral("WARN");
    case LogLevel::error:
        return QStringLiteral("ERROR");
    case LogLevel::raw:
        return QStringLiteral("RAW");
    }
    return {};
}

} // namespace brindlex
