#include "mouse/MouseResizeDragDecision.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(MouseResizeDragDecision, describesItself)
{
    EXPECT_EQ(
        (MouseResizeDragDecision{true, "windowEdge", {10, 20.55}, "C", "A", true}).description(),
        "decision=bypass reason=windowEdge point=10.0,20.6 cursor=C ax=A windowEdge=true");
    EXPECT_EQ(
        (MouseResizeDragDecision{false, "none", {-1, 0}, "C", "skipped", false}).description(),
        "decision=gesture reason=none point=-1.0,0.0 cursor=C ax=skipped windowEdge=false");
}

} // namespace
} // namespace brindlex
