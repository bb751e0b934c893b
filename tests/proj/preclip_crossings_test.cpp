#include "proj/preclip_crossings.h"

#include <gtest/gtest.h>

#include <vector>

using namespace ZrProj::preclip;

namespace {

/// Where the function changes its sign between 0 and 1; `curvature` bounds its second derivative.
template <class Function> std::vector<double> rootsOf(Function const& f, double curvature) {
    std::vector<double> roots;
    auto const report = [&](double s) { roots.push_back(s); };
    SignChanges(f, curvature, report).search(0, f(0.0), 1, f(1.0));
    return roots;
}

} // namespace

TEST(PreclipCrossings, FindsEveryRootInOrder) {
    for (double const turns : {1.0, 3.0, 10.0, 40.0}) {
        double const speed = 2 * 3.141592653589793 * turns;
        auto const roots = rootsOf([&](double s) { return std::sin(speed * s + 0.3); }, speed * speed);
        ASSERT_EQ(roots.size(), static_cast<std::size_t>(2 * turns));
        for (std::size_t i = 0; i < roots.size(); ++i)
            EXPECT_NEAR(roots[i], (3.141592653589793 * static_cast<double>(i + 1) - 0.3) / speed, 1e-14);
    }
}

// A curve that a segment dips into by no more than the precision, or just touches, may be passed over; a deeper dip
// must not be, however narrow.
TEST(PreclipCrossings, SeparatesRootsThatLieCloseTogether) {
    for (double const depth : {1e-2, 1e-4, 1e-6, 1e-8}) {
        auto const roots = rootsOf([&](double s) { return (s - 0.37) * (s - 0.37) - depth; }, 2);
        ASSERT_EQ(roots.size(), 2U) << depth;
        EXPECT_NEAR(roots[0], 0.37 - std::sqrt(depth), 1e-11);
        EXPECT_NEAR(roots[1], 0.37 + std::sqrt(depth), 1e-11);
    }
    EXPECT_TRUE(rootsOf([](double s) { return (s - 0.37) * (s - 0.37) + 1e-8; }, 2).empty());
    EXPECT_EQ(rootsOf([](double s) { return (s - 0.37) * (s - 0.37); }, 2).size() % 2, 0U);
}

// The root that is told lies on the side where the function is not negative, which is the side that maps show.
TEST(PreclipCrossings, TellsTheShownSideOfARoot) {
    for (double const slope : {1.0, -1.0}) {
        auto const f = [slope](double s) { return slope * (std::exp(s) - 1.7); };
        auto const roots = rootsOf(f, 3);
        ASSERT_EQ(roots.size(), 1U);
        EXPECT_GE(f(roots[0]), 0);
        EXPECT_LT(f(roots[0]), 1e-14);
    }
}
