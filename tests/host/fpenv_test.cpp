#include "host/fpenv.h"

#include "support/floating_point.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>

using namespace ZrProj;

namespace {

double divide(double a, double b) {
    double const volatile divisor = b; // volatile, so that the division is made, and made at run time
    double const volatile result = a / divisor;
    return result;
}

} // namespace

TEST(FloatingPointScope, ComputesByDefaultRulesAndLeavesTheHostsAlone) {
    std::fenv_t saved;
    std::fegetenv(&saved);
    double const nearest = divide(1, 3);
    std::fesetround(FE_DOWNWARD);
    double const down = divide(-1, 3); // away from zero
    ASSERT_NE(down, -nearest);
    EXPECT_EQ(withDefaultFloatingPoint([] { return divide(-1, 3); }), -nearest);
    EXPECT_EQ(std::fegetround(), FE_DOWNWARD);
    std::fesetenv(&saved);
}

TEST(FloatingPointScope, HidesExceptionsFromAHostThatTrapsThem) {
    TrapsEnabled const traps;
    double const infinite = withDefaultFloatingPoint([] { return divide(1, 0); });
    EXPECT_TRUE(traps.untouched());
    EXPECT_TRUE(std::isinf(infinite));
}

// Of the five exceptions three count; underflow and an inexact result are ordinary.
TEST(FloatingPointScope, WatchesThreeExceptions) {
    FloatingPointScope const scope;
    auto const raises = [](double a, double b) {
        clearArithmeticFlags();
        static_cast<void>(divide(a, b));
        return arithmeticFlagRaised();
    };
    EXPECT_TRUE(raises(1, 0));
    EXPECT_TRUE(raises(0, 0));
    EXPECT_TRUE(raises(1e308, 1e-308));
    EXPECT_FALSE(raises(1, 3));
    EXPECT_FALSE(raises(1e-308, 1e10));
}
