#include "support/levels.h"
#include "support/registry.h"

using namespace ZrProj;
using test::isMarked;
using test::Projection;

TEST(LambertConformalConic, EndsAtTheFarPole) {
    test::forEachLevel([](levels::Level) {
        for (double const side : {-1, 1}) {
            Projection projection(side > 0
                                      ? "type=lambert-conformal-conic ellipsoid=wgs-84 lat1=50 lat2=30 lat0=90"
                                      : "type=lambert-conformal-conic ellipsoid=wgs-84 lat1=-50 lat2=-30 lat0=-90");
            auto const apex = projection.forward({20, 90 * side});
            EXPECT_NEAR(apex.x, 0, 1e-9);
            EXPECT_NEAR(apex.y, 0, 1e-9);
            EXPECT_EQ(projection.inverse({0, 0}).y, 90 * side);
            EXPECT_TRUE(isMarked(projection.forward({20, -90 * side})));
            EXPECT_FALSE(projection.isInRange({20, -90 * side}));
            EXPECT_FALSE(isMarked(projection.forward({20, -89.999999 * side})));
        }
    });
}

// As the parallels become opposite, the cone becomes the cylinder of Mercator's projection, reduced to be true there.
TEST(LambertConformalConic, GoesOverIntoMercator) {
    test::forEachLevel([](levels::Level) {
        Projection cone("type=lambert-conformal-conic ellipsoid=wgs-84 lat1=30 lat2=-29.99999999999999"),
            cylinder("type=mercator ellipsoid=wgs-84");
        double const trueScale = cone.forward({1, 0}).x / cylinder.forward({1, 0}).x;
        EXPECT_NEAR(trueScale, 0.86675, 1e-4); // cos 30 / sqrt(1 - e^2 / 4)
        for (auto const& point : {PROJPOINT{179, 80}, {-179, -80}, {-60, 45}}) {
            auto const near = cone.forward(point), far = cylinder.forward(point);
            EXPECT_NEAR(near.x, trueScale * far.x, 1e-6);
            EXPECT_NEAR(near.y, trueScale * far.y, 1e-6);
            EXPECT_NEAR(cone.inverse(near).y, point.y, 1e-11);
        }
    });
}
