// What the exact transverse Mercator promises beyond the values of its file.
#include "support/levels.h"
#include "support/registry.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ZrProj;
using test::isMarked;
using test::Projection;

namespace {

constexpr char const* exact = "method=transverse-mercator-exact radius=6378137 rf=298.257223563 lon0=177 k0=0.9996";

} // namespace

TEST(TransverseMercatorExact, EndsWhereItNoLongerMapsBack) {
    test::forEachLevel([](levels::Level) {
        Projection projection(exact);
        for (double const side : {-1, 1}) {
            auto const last = projection.forward(PROJPOINT{177 + side * 61, 0});
            EXPECT_NEAR(std::fabs(last.x), 8.65e6, 5e4);
            EXPECT_TRUE(isMarked(projection.forward(PROJPOINT{177 + side * 62, 0})));
            EXPECT_TRUE(isMarked(projection.inverse(PROJPOINT{side * 9e6, 0})));
            EXPECT_FALSE(isMarked(projection.inverse(last)));
        }
        EXPECT_TRUE(isMarked(projection.inverse(PROJPOINT{0, 2.1e7})));
    });
}

TEST(TransverseMercatorExact, GoesOnBeyondThePolesAndTheAntimeridian) {
    test::forEachLevel([](levels::Level) {
        Projection projection(exact);
        double const pole = projection.forward(PROJPOINT{177, 90}).y;
        auto const near = projection.forward(PROJPOINT{180, 80}), far = projection.forward(PROJPOINT{-6, 80});
        EXPECT_NEAR(far.y, 2 * pole - near.y, 1e-7);
        EXPECT_NEAR(far.x, near.x, 1e-7);
        auto const east = projection.forward(PROJPOINT{-175, 40}), same = projection.forward(PROJPOINT{185, 40});
        EXPECT_NEAR(east.x, same.x, 1e-8);
        EXPECT_GT(east.x, 0);
    });
}

// The well-known series is right within a millimetre at 3 degrees, and far off where systems that are wide go.
TEST(TransverseMercatorExact, LeavesTheSeriesBehind) {
    test::forEachLevel([](levels::Level) {
        Projection projection(exact), series("type=transverse-mercator ellipsoid=wgs-84 lon0=177 k0=0.9996");
        auto const apart = [&](PROJPOINT const& at) {
            auto const a = projection.forward(at), b = series.forward(at);
            return std::hypot(a.x - b.x, a.y - b.y);
        };
        EXPECT_LT(apart({180, 40}), 1e-3);
        EXPECT_GT(apart({162, 40}), 0.1);
    });
}
