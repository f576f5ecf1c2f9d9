#pragma once

#include "platform/linux/inputsources/Fcitx5Selection.h"

#include <gtest/gtest.h>

#include <string>

namespace brindlex {

inline constexpr std::uint32_t window = 0x1200007;
inline constexpr std::uint32_t anotherWindow = 0x1400003;
inline const std::string context = "0a1b";
inline const std::string anotherContext = "0c2d";
/// A machine that has run for a while.
inline const Fcitx5Selection::Time start{std::chrono::hours{1}};

/// What a check finds while the keyboard stays where it is.
inline Fcitx5Selection::Observation observed(
    const std::string& keyboard, const std::string& method, std::uint32_t activeWindow = window)
{
    return {keyboard, keyboard, method, activeWindow};
}

/// Has read the method at the start.
inline Fcitx5Selection following(const std::string& method)
{
    Fcitx5Selection selection;
    selection.take(observed(method.empty() ? "" : context, method), start);
    return selection;
}

/// Has requested pinyin at the start, for the window and while the context had the keyboard.
inline Fcitx5Selection keeping()
{
    auto selection = following("keyboard-us");
    selection.acknowledge(selection.select("pinyin", window, start), context, context);
    selection.take(observed(context, "pinyin"), start);
    EXPECT_EQ(selection.confirm(/*isReplyAnError*/ false), SelectionStatus::done);
    return selection;
}

/// What a check, begun now, decides.
inline Fcitx5Selection::Verdict check(
    Fcitx5Selection& selection, const Fcitx5Selection::Observation& seen, Fcitx5Selection::Time now)
{
    const auto begun = selection.beginCheck();
    EXPECT_TRUE(begun);
    return selection.endCheck(begun.value_or(-1), seen, now);
}

} // namespace brindlex
