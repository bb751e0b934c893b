#include "georef/spline_equations.h"

#include "support/georef_cases.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

constexpr std::size_t count = 40;

struct Problem {
    std::vector<double> u, v, targets;
    georef::Warp warp;
    Matrix terms{count, 3};

    explicit Problem(WarpingMethod method) {
        auto const controls = scattered(count, 2, [](GEOREFPOINT p) {
            return GEOREFPOINT{std::sin(3 * p.x) + p.y * p.y, 0};
        });
        for (std::size_t i = 0; i < count; ++i) {
            u.push_back(controls.source[i].x - 1);
            v.push_back(controls.source[i].y - 1);
            targets.push_back(controls.target[i].x);
        }
        warp = {.method = method, .controls = count, .u = u.data(), .v = v.data()};
        std::ranges::fill(terms.column(0), 1.0);
        std::ranges::copy(u, terms.column(1).begin());
        std::ranges::copy(v, terms.column(2).begin());
    }
};

double largest(std::vector<double> const& values) {
    double result = 0;
    for (double const value : values)
        result = std::max(result, std::fabs(value));
    return result;
}

} // namespace

// The solution is put into the equations as they are written, K w + P a = t and P^T w = 0.
TEST(SplineEquations, AreSolved) {
    for (int method = WarpingMethodThinPlateSpline; method < WarpingMethodInverseDistanceSquared; ++method) {
        SCOPED_TRACE(method);
        Problem const problem(static_cast<WarpingMethod>(method));
        auto const affine = Factorisation::of(problem.terms, 1e-12);
        ASSERT_TRUE(affine);
        auto const equations = SplineEquations::of(problem.warp, *affine, std::vector<double>(count * count));
        ASSERT_TRUE(equations);
        auto const [weights, plane] = equations->solve(problem.targets);
        ASSERT_EQ(weights.size(), count);
        ASSERT_EQ(plane.size(), 3U);
        double const size = largest(weights);
        for (std::size_t i = 0; i < count; ++i) {
            std::vector<double> basis(count);
            georef::kernels().basisRow(problem.warp, i, basis.data());
            double sum = plane[0] + plane[1] * problem.u[i] + plane[2] * problem.v[i];
            for (std::size_t j = 0; j < count; ++j)
                sum += basis[j] * weights[j];
            EXPECT_NEAR(sum, problem.targets[i], 1e-12 * size);
        }
        for (std::size_t k = 0; k < 3; ++k) {
            double sum = 0;
            for (std::size_t i = 0; i < count; ++i)
                sum += problem.terms.column(k)[i] * weights[i];
            EXPECT_NEAR(sum, 0, 1e-12 * size);
        }
    }
}

TEST(SplineEquations, RefuseControlsThatTheyCannotTellApart) {
    Problem problem(WarpingMethodExponentialSpline);
    problem.u[7] = problem.terms.column(1)[7] = problem.u[5];
    problem.v[7] = problem.terms.column(2)[7] = problem.v[5];
    auto const affine = Factorisation::of(problem.terms, 1e-12);
    ASSERT_TRUE(affine);
    EXPECT_FALSE(SplineEquations::of(problem.warp, *affine, std::vector<double>(count * count)));
}
