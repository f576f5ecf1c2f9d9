#pragma once

#include "platform/linux/preferences/PreferenceFileSync.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace brindlex {

inline std::string text(PreferenceFileSync::Timer timer)
{
    switch (timer) {
    case PreferenceFileSync::Timer::write:
        return "write";
    case PreferenceFileSync::Timer::retry:
        return "retry";
    case PreferenceFileSync::Timer::settle:
        return "settle";
    }
    return "?";
}

inline std::string text(const std::set<std::string>& keys)
{
    std::string all;
    for (const auto& key : keys)
        all += ' ' + key;
    return all;
}

/// For example "stop retry, write a b, look waits, start settle 1".
inline std::string text(const PreferenceFileSync::Actions& actions)
{
    using Action = PreferenceFileSync::Action;
    std::ostringstream all;
    for (const auto& action : actions) {
        all << (all.str().empty() ? "" : ", ");
        match(
            action, [&](const Action::Write& due) { all << "write" << text(due.changedKeys); },
            [&](const Action::Look& due) {
                all << (due.patience == PreferenceFile::Patience::acts ? "look acts"
                                                                       : "look waits");
            },
            [&](const Action::StartTimer& due) {
                all << "start " << text(due.timer) << ' ' << due.delay;
            },
            [&](const Action::StopTimer& due) { all << "stop " << text(due.timer); });
    }
    return all.str();
}

} // namespace brindlex
