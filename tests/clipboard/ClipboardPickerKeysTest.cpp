#include "clipboard/ClipboardPickerKeys.h"

#include "platform/VirtualKey.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex {
namespace {

/// The action in words.
std::string inWords(const ClipboardPickerAction::Any& action)
{
    return match(
        action, [](const ClipboardPickerAction::Ignored&) { return std::string("ignored"); },
        [](const ClipboardPickerAction::Move& to) { return "move " + std::to_string(to.delta); },
        [](const ClipboardPickerAction::MoveCategory& to) {
            return "category " + std::to_string(to.delta);
        },
        [](const ClipboardPickerAction::Commit&) { return std::string("commit"); },
        [](const ClipboardPickerAction::CommitItem& item) {
            return "commit " + std::to_string(item.index);
        },
        [](const ClipboardPickerAction::DeleteSelection&) { return std::string("delete"); },
        [](const ClipboardPickerAction::TogglePinSelection&) { return std::string("toggle pin"); },
        [](const ClipboardPickerAction::UnpinSelection&) { return std::string("unpin"); },
        [](const ClipboardPickerAction::Preview&) { return std::string("preview"); },
        [](const ClipboardPickerAction::Cancel&) { return std::string("cancel"); });
}

std::string actionAt(std::int64_t keyCode, KeyPhase phase, ModifierSet modifiers, bool isQueryEmpty)
{
    return inWords(clipboardPickerAction({keyCode, phase, modifiers}, isQueryEmpty));
}

/// Every set of the four modifiers.
std::vector<ModifierSet> allModifiers()
{
    std::vector<ModifierSet> sets;
    for (std::uint64_t bits = 0; bits < 16; ++bits)
        sets.push_back({bits});
    return sets;
}

/// What a key is to do at its press and at its repetition.
struct ExpectedActions {
    std::string press;
    std::string repeat;
};

/// Holds the key to it, and to do nothing when it is released.
void expectActions(
    std::int64_t keyCode, ModifierSet modifiers, bool isQueryEmpty, const ExpectedActions& expected)
{
    SCOPED_TRACE("key " + std::to_string(keyCode) + " with " + modifiers.displayText()
        + (isQueryEmpty ? ", empty query" : ", query"));
    EXPECT_EQ(actionAt(keyCode, KeyPhase::press, modifiers, isQueryEmpty), expected.press);
    EXPECT_EQ(actionAt(keyCode, KeyPhase::repeat, modifiers, isQueryEmpty), expected.repeat);
    EXPECT_EQ(actionAt(keyCode, KeyPhase::release, modifiers, isQueryEmpty), "ignored");
}

/// With any modifiers of which the condition holds, and any query.
template <typename Condition>
void expectWherever(Condition condition, std::int64_t keyCode, const ExpectedActions& expected)
{
    for (const auto modifiers : allModifiers())
        for (const bool isQueryEmpty : {true, false})
            if (condition(modifiers))
                expectActions(keyCode, modifiers, isQueryEmpty, expected);
}

constexpr auto always = [](ModifierSet) { return true; };
constexpr auto withCommand
    = [](ModifierSet modifiers) { return modifiers.contains(ModifierSet::command); };
constexpr auto withoutCommand = [](ModifierSet modifiers) { return !withCommand(modifiers); };
constexpr auto withOption
    = [](ModifierSet modifiers) { return modifiers.contains(ModifierSet::option); };
constexpr auto withoutOption = [](ModifierSet modifiers) { return !withOption(modifiers); };
constexpr auto withCommandAlone
    = [](ModifierSet modifiers) { return modifiers == ModifierSet::command; };
constexpr auto otherThanCommandAlone
    = [](ModifierSet modifiers) { return !withCommandAlone(modifiers); };

TEST(ClipboardPickerKeys, moveTheSelectionByArrowsUpAndDown)
{
    expectWherever(withoutCommand, 125, {"move 1", "move 1"});
    expectWherever(withoutCommand, 126, {"move -1", "move -1"});
}

TEST(ClipboardPickerKeys, pinAndUnpinByTheseArrowsWithCommand)
{
    expectWherever(withCommand, 125, {"unpin", "unpin"});
    expectWherever(withCommand, 126, {"toggle pin", "toggle pin"});
}

TEST(ClipboardPickerKeys, changeTheCategoryByArrowsLeftAndRight)
{
    expectWherever(always, 124, {"category 1", "ignored"});
    expectWherever(always, 123, {"category -1", "ignored"});
}

TEST(ClipboardPickerKeys, previewBySpaceWithOption)
{
    expectWherever(withOption, 49, {"preview", "preview"});
    expectWherever(withoutOption, 49, {"ignored", "ignored"});
}

TEST(ClipboardPickerKeys, commitByReturnAndCancelByEscape)
{
    expectWherever(always, 36, {"commit", "ignored"});
    expectWherever(always, 53, {"cancel", "ignored"});
}

TEST(ClipboardPickerKeys, deleteAnItemWhileNothingIsTyped)
{
    for (const std::int64_t keyCode : {51, 117})
        for (const auto modifiers : allModifiers())
            expectActions(keyCode, modifiers, true, {"delete", "delete"});
}

TEST(ClipboardPickerKeys, editTheQueryByDeletionUnlessCommandAloneIsHeld)
{
    for (const std::int64_t keyCode : {51, 117})
        for (const auto modifiers : allModifiers())
            expectActions(keyCode, modifiers, false,
                {withCommandAlone(modifiers) ? "delete" : "ignored", "ignored"});
}

TEST(ClipboardPickerKeys, commitTheFirstNineItemsByDigitsWithCommandAlone)
{
    const std::vector<std::int64_t> digits{18, 19, 20, 21, 23, 22, 26, 28, 25};
    for (std::size_t index = 0; index < digits.size(); ++index) {
        expectWherever(
            withCommandAlone, digits[index], {"commit " + std::to_string(index), "ignored"});
        expectWherever(otherThanCommandAlone, digits[index], {"ignored", "ignored"});
    }
}

TEST(ClipboardPickerKeys, leaveAllOtherKeysToTheField)
{
    const std::vector<std::int64_t> known{
        18, 19, 20, 21, 22, 23, 25, 26, 28, 36, 49, 51, 53, 117, 123, 124, 125, 126};
    for (std::int64_t keyCode = -1; keyCode < 300; ++keyCode)
        if (std::find(known.begin(), known.end(), keyCode) == known.end())
            expectWherever(always, keyCode, {"ignored", "ignored"});
}

TEST(ClipboardPickerKeys, takeNoModifierIntoAccountThatIsNoneOfTheFour)
{
    EXPECT_EQ(actionAt(125, KeyPhase::press, {16}, true), "move 1");
    EXPECT_EQ(actionAt(36, KeyPhase::press, {}, false), "commit");
}

} // namespace
} // namespace brindlex
