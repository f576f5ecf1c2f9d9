#include "platform/linux/inputsources/Fcitx5SelectionSteps.h"

#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace brindlex {
namespace {

using namespace std::chrono_literals;
using Verdict = Fcitx5Selection::Verdict;
using Change = Fcitx5Selection::Change;
using Observation = Fcitx5Selection::Observation;

/// Rows of the table in the header, each for all that it has in common.
struct Row {
    std::vector<std::uint32_t> windows{};
    std::vector<std::string> contexts{};
    std::vector<std::string> methods{};
    std::vector<std::chrono::nanoseconds> ages{};
    Verdict verdict = Verdict::keep;
};

const std::vector<std::uint32_t> sameOrNone{window, 0};
const std::vector<std::string> anyMethod{"pinyin", "keyboard-us", ""};
const std::vector<std::string> otherMethods{"keyboard-us", ""};
const std::vector<std::chrono::nanoseconds> young{-1h, 0ns, 300ms};
const std::vector<std::chrono::nanoseconds> old{300ms + 1ns, 1h};
const std::vector<std::chrono::nanoseconds> anyAge{-1h, 0ns, 300ms, 300ms + 1ns, 1h};

const std::vector<Row> table{
    {{anotherWindow}, {"", context, anotherContext}, anyMethod, anyAge, Verdict::left},
    {sameOrNone, {""}, anyMethod, anyAge, Verdict::keep},
    {sameOrNone, {anotherContext}, otherMethods, anyAge, Verdict::requestAgain},
    {sameOrNone, {context}, otherMethods, anyAge, Verdict::chosen},
    {sameOrNone, {context, anotherContext}, {"pinyin"}, young, Verdict::keep},
    {sameOrNone, {context, anotherContext}, {"pinyin"}, old, Verdict::reached},
};

/// Calls `body` with each observation of the row and its age.
template <typename Body>
void forEachCase(const Row& row, Body body)
{
    for (const auto active : row.windows)
        for (const auto& keyboard : row.contexts)
            for (const auto& method : row.methods)
                for (const auto age : row.ages)
                    body(observed(keyboard, method, active), age);
}

TEST(Fcitx5Selection, decidesByItsTable)
{
    for (const auto& row : table)
        forEachCase(row, [&](const Observation& seen, std::chrono::nanoseconds age) {
            SCOPED_TRACE(testing::Message() << seen.activeWindow << " [" << seen.contextAfter
                                            << "] " << *seen.method << ' ' << age.count());
            auto selection = keeping();

            EXPECT_EQ(check(selection, seen, start + age), row.verdict);

            const bool ends = row.verdict != Verdict::keep && row.verdict != Verdict::requestAgain;
            EXPECT_EQ(selection.isKeeping(), !ends);
            const auto now = seen.method->empty() ? std::nullopt : seen.method;
            EXPECT_EQ(selection.method(), ends ? now : "pinyin");
        });
}

TEST(Fcitx5Selection, hasOneRowForEachCase)
{
    std::size_t cases = 0;
    std::set<std::tuple<std::uint32_t, std::string, std::string, std::chrono::nanoseconds>> seen;
    for (const auto& row : table)
        forEachCase(row, [&](const Observation& observation, std::chrono::nanoseconds age) {
            ++cases;
            seen.emplace(
                observation.activeWindow, observation.contextAfter, *observation.method, age);
        });

    EXPECT_EQ(cases, 3U * 3 * 3 * 5);
    EXPECT_EQ(seen.size(), cases);
}

TEST(Fcitx5Selection, isGivenOnceToAContextThatMissedIt)
{
    auto selection = keeping();
    const auto missed = observed(anotherContext, "keyboard-us");

    EXPECT_EQ(check(selection, missed, start + 100ms), Verdict::requestAgain);
    EXPECT_EQ(selection.method(), "pinyin");
    ASSERT_TRUE(selection.acknowledge(1, anotherContext, anotherContext));
    EXPECT_EQ(check(selection, missed, start + 200ms), Verdict::chosen)
        << "What the context has after that is the choice of the user.";
    EXPECT_EQ(selection.method(), "keyboard-us");
}

TEST(Fcitx5Selection, isGivenAgainWhenTheKeyboardMovedWhileItWasRequested)
{
    auto selection = keeping();
    const auto missed = observed(anotherContext, "keyboard-us");
    ASSERT_EQ(check(selection, missed, start + 100ms), Verdict::requestAgain);
    ASSERT_TRUE(selection.acknowledge(1, anotherContext, context));

    EXPECT_EQ(check(selection, missed, start + 200ms), Verdict::requestAgain)
        << "Nobody knows which context has got it: this one has not.";
    EXPECT_EQ(selection.method(), "pinyin");
}

TEST(Fcitx5Selection, isGivenAgainAsLongAsTheRequestHasNoReply)
{
    auto selection = keeping();
    const auto missed = observed(anotherContext, "keyboard-us");
    ASSERT_EQ(check(selection, missed, start + 100ms), Verdict::requestAgain);

    EXPECT_EQ(check(selection, missed, start + 200ms), Verdict::requestAgain);
}

TEST(Fcitx5Selection, waitsAgainForAContextThatItWasGivenTo)
{
    auto selection = keeping();
    const auto later = start + 10s;
    ASSERT_EQ(
        check(selection, observed(anotherContext, "keyboard-us"), later), Verdict::requestAgain);

    const auto taken = observed(anotherContext, "pinyin");
    EXPECT_EQ(check(selection, taken, later + 300ms), Verdict::keep);
    EXPECT_EQ(check(selection, taken, later + 300ms + 1ns), Verdict::reached);
}

TEST(Fcitx5Selection, isGivenToTheFirstContextWhenNoneHadTheKeyboard)
{
    auto selection = following("");
    ASSERT_TRUE(selection.acknowledge(selection.select("pinyin", window, start), "", ""));

    EXPECT_EQ(check(selection, observed("", ""), start + 1h), Verdict::keep);
    EXPECT_EQ(
        check(selection, observed(context, "keyboard-us"), start + 1h), Verdict::requestAgain);
}

TEST(Fcitx5Selection, isOverWhenAnyWindowIsActiveAfterNone)
{
    auto selection = following("");
    selection.acknowledge(selection.select("pinyin", 0, start), "", "");

    EXPECT_EQ(check(selection, observed("", "", 0), start), Verdict::keep);
    EXPECT_EQ(check(selection, observed("", "", window), start), Verdict::left);
}

TEST(Fcitx5Selection, decidesNothingWhileTheKeyboardMovesOrTheDaemonFails)
{
    const std::vector<Observation> unclear{
        {context, anotherContext, "keyboard-us", anotherWindow},
        {"", context, "pinyin", window},
        {context, "", "pinyin", window},
        {context, context, std::nullopt, anotherWindow},
    };
    for (const auto& seen : unclear) {
        auto selection = keeping();

        EXPECT_EQ(check(selection, seen, start + 1h), Verdict::keep);

        EXPECT_EQ(selection.method(), "pinyin");
        EXPECT_TRUE(selection.beginCheck()) << "The next check may be clear.";
    }
}

TEST(Fcitx5Selection, checksOnceAtATime)
{
    auto selection = keeping();

    ASSERT_TRUE(selection.beginCheck());
    EXPECT_EQ(selection.beginCheck(), std::nullopt);
}

TEST(Fcitx5Selection, ignoresACheckFromBeforeTheSelection)
{
    auto selection = keeping();
    const auto late = selection.beginCheck();
    ASSERT_TRUE(late);
    selection.select("anthy", window, start + 1s);
    EXPECT_EQ(selection.beginCheck(), std::nullopt) << "The late check is still under way.";

    EXPECT_EQ(selection.endCheck(*late, observed(context, "pinyin", anotherWindow), start + 1s),
        Verdict::keep);

    EXPECT_EQ(selection.method(), "anthy");
    EXPECT_TRUE(selection.beginCheck());
}

TEST(Fcitx5Selection, ignoresACheckThatEndsASecondTimeOrAfterItIsOver)
{
    auto selection = keeping();
    const auto begun = selection.beginCheck();
    ASSERT_TRUE(begun);
    const auto choice = observed(context, "keyboard-us");
    ASSERT_EQ(selection.endCheck(*begun, choice, start), Verdict::chosen);

    EXPECT_EQ(selection.endCheck(*begun, observed(context, "anthy"), start), Verdict::keep);

    EXPECT_EQ(selection.method(), "keyboard-us");
}

TEST(Fcitx5Selection, takesWhatACheckHasReadForFresh)
{
    auto selection = keeping();
    ASSERT_EQ(check(selection, observed(context, "pinyin"), start + 1s), Verdict::reached);

    EXPECT_FALSE(selection.isStale(start + 1s + 50ms));
    EXPECT_TRUE(selection.isStale(start + 1s + 51ms));
    EXPECT_EQ(selection.take(observed(context, "pinyin"), start + 2s), Change::none);
}

} // namespace
} // namespace brindlex
