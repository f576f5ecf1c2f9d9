#include "platform/linux/panels/X11InputHold.h"

#include "support/locks/InputGrab.h"
#include "support/screen/XConnection.h"

#include <gtest/gtest.h>

#include <optional>

namespace brindlex {
namespace {

TEST(X11InputHold, hasPointerAndKeysFromTheTakingToItsEnd)
{
    const XConnection server;
    {
        X11InputHold hold(server.get());
        EXPECT_TRUE(hold.take());
        const XConnection other;
        EXPECT_TRUE(isAllInputTaken(other));
    }
    server.sync();
    const InputGrab next({});
}

TEST(X11InputHold, takesNeitherWhereAnotherProgramHasOne)
{
    const XConnection server;
    X11InputHold hold(server.get());
    {
        const InputGrab drag({.keyboard = false});
        EXPECT_FALSE(hold.take());
        const InputGrab launcher({.pointer = false});
    }
    {
        const InputGrab launcher({.pointer = false});
        EXPECT_FALSE(hold.take());
        const InputGrab drag({.keyboard = false});
    }
    EXPECT_TRUE(hold.take());
}

} // namespace
} // namespace brindlex
