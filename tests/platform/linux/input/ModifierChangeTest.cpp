#include "platform/linux/input/ModifierChange.h"

#include "platform/Event.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace brindlex {
namespace {

using Keys = std::vector<std::uint8_t>;

struct HeldModifier {
    std::uint64_t flag;
    std::uint8_t left, right;
};
/// In the order of X's modifiers.
constexpr std::array held{HeldModifier{eventFlag::shift, 50, 62},
    HeldModifier{eventFlag::control, 37, 105}, HeldModifier{eventFlag::option, 64, 108},
    HeldModifier{eventFlag::command, 133, 134}};

/// An ordinary keyboard on which these keys are down.
ModifierState keyboardWith(const Keys& down, bool isCapsLockOn = false)
{
    ModifierState state{.keysOf = {{{50, 62, 0}, {66, 0, 0}, {37, 105, 0}, {64, 108, 205},
                            {77, 0, 0}, {203, 0, 0}, {133, 134, 206}, {92, 0, 0}}},
        .flags = isCapsLockOn ? eventFlag::capsLock : 0};
    for (const auto key : down)
        state.keysDown.set(key);
    return state;
}

/// The four modifiers of which the bits of a number stand for those that are in.
std::uint64_t flagsOf(unsigned set)
{
    std::uint64_t flags = 0;
    for (std::size_t index = 0; index < held.size(); ++index)
        flags |= set >> index & 1 ? held[index].flag : 0;
    return flags;
}

TEST(ModifierChange, pressesWhatIsMissingAndReleasesWhatIsTooMuch)
{
    for (unsigned before = 0; before < 16; ++before)
        for (unsigned wanted = 0; wanted < 16; ++wanted) {
            Keys down;
            ModifierChange expected;
            for (std::size_t index = 0; index < held.size(); ++index) {
                const bool isDown = (before >> index & 1) != 0;
                const bool isWanted = (wanted >> index & 1) != 0;
                if (isDown)
                    down.push_back(held[index].left);
                if (isDown && !isWanted)
                    expected.releases.push_back(held[index].left);
                if (!isDown && isWanted)
                    expected.presses.push_back(held[index].left);
            }
            EXPECT_EQ(changeToHold(flagsOf(wanted), keyboardWith(down)), expected)
                << before << " " << wanted;
        }
}

TEST(ModifierChange, countsEitherKeyOfAModifier)
{
    for (const auto& modifier : held) {
        const auto right = keyboardWith({modifier.right});
        const auto both = keyboardWith({modifier.right, modifier.left});
        EXPECT_EQ(changeToHold(modifier.flag, right), ModifierChange{});
        EXPECT_EQ(changeToHold(0, right), (ModifierChange{.releases = {modifier.right}}));
        EXPECT_EQ(changeToHold(modifier.flag, both), ModifierChange{});
        EXPECT_EQ(
            changeToHold(0, both), (ModifierChange{.releases = {modifier.left, modifier.right}}));
    }
}

TEST(ModifierChange, switchesCapsLockOffAndNeverOn)
{
    EXPECT_EQ(
        changeToHold(0, keyboardWith({}, true)), (ModifierChange{.switchesCapsLockOff = true}));
    EXPECT_EQ(changeToHold(eventFlag::capsLock, keyboardWith({}, true)), ModifierChange{});
    EXPECT_EQ(changeToHold(eventFlag::capsLock, keyboardWith({}, false)), ModifierChange{});
    EXPECT_EQ(changeToHold(0, keyboardWith({}, false)), ModifierChange{});
}

TEST(ModifierChange, leavesKeysThatHoldNoneOfTheFour)
{
    // Caps Lock, Num Lock, one of the layout's own modifiers, the key for the third level, a letter
    // and the numbers at the ends.
    const auto state = keyboardWith({66, 77, 203, 92, 38, 0, 8, 255});
    for (unsigned wanted = 0; wanted < 16; ++wanted)
        EXPECT_EQ(
            changeToHold(flagsOf(wanted), state), changeToHold(flagsOf(wanted), keyboardWith({})))
            << wanted;
    EXPECT_EQ(changeToHold(0, state), ModifierChange{});
}

TEST(ModifierChange, doesNotCareForFlagsOfOtherKinds)
{
    const auto others = ~(eventFlag::modifiers | eventFlag::capsLock);
    EXPECT_EQ(
        changeToHold(others, keyboardWith({50}, true)), changeToHold(0, keyboardWith({50}, true)));
}

TEST(ModifierChange, pressesTheFirstKeyThatIsOne)
{
    ModifierState state;
    state.keysOf[0] = {0, 0, 62};
    state.keysOf[2] = {0, 0};
    // No key cannot be down.
    state.keysDown.set(0);

    EXPECT_EQ(changeToHold(eventFlag::modifiers, state), (ModifierChange{.presses = {62}}));
    EXPECT_EQ(changeToHold(0, state), ModifierChange{});
}

TEST(ModifierChange, doesNothingOnAKeyboardWithoutModifiers)
{
    EXPECT_EQ(changeToHold(eventFlag::modifiers, {}), ModifierChange{});
    EXPECT_EQ(changeToHold(0, {}), ModifierChange{});
}

TEST(ModifierChange, releasesAKeyOnceForEachUnwantedModifierThatItHolds)
{
    ModifierState state;
    state.keysOf[0] = {50};
    state.keysOf[3] = {50};
    state.keysDown.set(50);

    EXPECT_EQ(changeToHold(0, state), (ModifierChange{.releases = {50, 50}}));
    EXPECT_EQ(changeToHold(eventFlag::shift, state), (ModifierChange{.releases = {50}}));
    EXPECT_EQ(changeToHold(eventFlag::shift | eventFlag::option, state), ModifierChange{});
}

} // namespace
} // namespace brindlex
