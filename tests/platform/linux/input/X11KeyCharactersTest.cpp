#include "platform/linux/input/X11KeyCharacters.h"

#include "support/hardware/KeyboardGroup.h"
#include "support/screen/XConnection.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

/// Where "Y" and "Z" stand on a US keyboard, and the key beside the "1".
constexpr std::int64_t keyY = 16;
constexpr std::int64_t keyZ = 6;
constexpr std::int64_t keyReturn = 36;
constexpr std::int64_t keyGrave = 50;

class X11KeyCharactersTest : public testing::Test {
protected:
    ~X11KeyCharactersTest() override { selectKeyboardGroup(server, 0); }

    XConnection server;
    X11Connection connection;
    X11KeyCharacters characters{connection};
};

TEST_F(X11KeyCharactersTest, areThoseOfTheLayoutThatIsSelected)
{
    selectKeyboardGroup(server, 0);
    EXPECT_EQ(characters.of(keyY), "y");
    EXPECT_EQ(characters.of(keyZ), "z");

    selectKeyboardGroup(server, 1);
    EXPECT_EQ(characters.of(keyY), "z");
    EXPECT_EQ(characters.of(keyZ), "y");
}

TEST_F(X11KeyCharactersTest, areNoneForKeysThatWriteNothing)
{
    EXPECT_EQ(characters.of(keyReturn), "");
    EXPECT_EQ(characters.of(123), "");
    EXPECT_EQ(characters.of(-1), "");
    EXPECT_EQ(characters.of(100'000), "");
}

TEST_F(X11KeyCharactersTest, areNoneForAKeyThatWaitsForTheNext)
{
    selectKeyboardGroup(server, 1);

    EXPECT_EQ(characters.of(keyGrave), "");
}

} // namespace
} // namespace brindlex
