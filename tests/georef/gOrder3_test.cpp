#include "georef/gOrder3.h"

#include "support/georef_cases.h"

#include <gtest/gtest.h>

#include <random>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

/// A map of the order, to UTM coordinates: over the image each order bends it by some hundred metres.
GEOREFPOINT mapOfOrder(int order, double size, GEOREFPOINT p) {
    long double const u = p.x / size, v = p.y / size;
    long double x = 4.65e5L + 101000 * u + 1700 * v, y = 5.427e6L + 1700 * u - 101000 * v;
    if (order > 0) {
        x += 300 * u * v;
        y -= 200 * u * v;
    }
    if (order > 1) {
        x += 120 * u * u - 330 * v * v;
        y += 410 * u * u + 90 * v * v;
    }
    if (order > 2) {
        x += 100 * u * u * u - 140 * u * u * v + 210 * u * v * v - 75 * v * v * v;
        y += 55 * u * u * u + 310 * u * u * v - 260 * u * v * v + 80 * v * v * v;
    }
    return {static_cast<double>(x), static_cast<double>(y)};
}

} // namespace

// With exactly as many controls as terms, and with more; where the image begins at the origin, and far from it.
TEST(PolynomialFit, ReproducesPolynomials) {
    struct Fit {
        TransformMethod method;
        int order, terms;
    };
    for (auto const& [method, order, terms] : {Fit{TransformMethodAffinePolynomial, 0, 3},
                                               {TransformMethod1stOrderPolynomial, 1, 4},
                                               {TransformMethod2ndOrderPolynomial, 2, 6},
                                               {TransformMethod3rdOrderPolynomial, 3, 10}})
        for (int const count : {terms, 25})
            for (double const offset : {0.0, 60000.0}) {
                SCOPED_TRACE(RefMethodName(method) + (" of " + std::to_string(count)));
                constexpr double size = 40000;
                auto const map = [&, order = order](GEOREFPOINT p) {
                    return mapOfOrder(order, size, {p.x - offset, p.y - offset});
                };
                auto controls = scattered(count, size, [&](GEOREFPOINT p) { return p; });
                for (std::size_t i = 0; i < controls.source.size(); ++i) {
                    auto& from = controls.source[i];
                    from = {from.x + offset, from.y + offset};
                    controls.target[i] = map(from);
                }
                GEOREF const record = controls.record(method);
                CGeorefTransform transform(&record);
                ASSERT_TRUE(transform.IsCreated());
                for (double x = 0; x <= size; x += 4000)
                    for (double y = 0; y <= size; y += 4000) {
                        GEOREFPOINT point{x + offset, y + offset};
                        auto const expected = map(point);
                        transform.Forward(&point, 1);
                        EXPECT_LE(distance(point, expected), 1e-6); // some hundred units in the last place
                    }
            }
}

// Six points of a circle have one conic too many through them, whatever their number.
TEST(PolynomialFit, RefusesASetWithoutFullRank) {
    ControlPoints circle;
    for (int i = 0; i < 12; ++i)
        circle.add({5000 + 3000 * std::cos(i * 0.5), 7000 + 3000 * std::sin(i * 0.5)}, {1.0 * i, 2.0 * i});
    GEOREF record = circle.record(TransformMethod2ndOrderPolynomial);
    EXPECT_EQ(RefCreateSystem(&record), nullptr);
    circle.source[0].x += 1;
    EXPECT_TRUE(CGeorefTransform(&record).IsCreated());
}

TEST(PolynomialFit, TakesRepeatedControlsWhileTheRankIsFull) {
    auto controls = scattered(3, 1000, [](GEOREFPOINT p) { return GEOREFPOINT{2 * p.x, 3 * p.y}; });
    controls.add(controls.source[0], {controls.target[0].x + 6, controls.target[0].y});
    GEOREF const record = controls.record(TransformMethodAffinePolynomial);
    CGeorefTransform transform(&record);
    double errors[4] = {};
    ASSERT_TRUE(transform.ComputeError(nullptr, errors));
    EXPECT_NEAR(errors[0], 3, 1e-9); // in the middle of the two
    EXPECT_NEAR(errors[3], 3, 1e-9);
}
