#include "platform/ActivationPolicy.h"

#include "platform/linux/programwindows/X11ActivationPolicy.h"
#include "platform/simulated/SimulatedActivationPolicy.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

struct SimulatedPolicyDesk {
    SimulatedActivationPolicy policy;
};

struct X11PolicyDesk {
    X11Connection connection;
    X11ActivationPolicy policy{connection};
};

template <typename Desk>
class ActivationPolicyContract : public testing::Test {
protected:
    Desk desk;
};

using PolicyDesks = testing::Types<SimulatedPolicyDesk, X11PolicyDesk>;
TYPED_TEST_SUITE(ActivationPolicyContract, PolicyDesks);

TYPED_TEST(ActivationPolicyContract, isRegularAtFirst)
{
    EXPECT_EQ(this->desk.policy.activationPolicy(), ActivationPolicy::regular);
}

TYPED_TEST(ActivationPolicyContract, isWhatWasSetLast)
{
    using enum ActivationPolicy;
    for (const auto policy : {accessory, accessory, regular, accessory}) {
        this->desk.policy.setActivationPolicy(policy);
        EXPECT_EQ(this->desk.policy.activationPolicy(), policy);
    }
}

} // namespace
} // namespace brindlex
