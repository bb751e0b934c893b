#include "support/levels.h"
#include "support/registry.h"

#include <gtest/gtest.h>

using namespace ZrProj;
using test::isMarked;
using test::Projection;

// Between the two edges of the unrolled cone is nothing; the edges stay, though a false origin rounds them.
TEST(Cone, HasAGap) {
    test::forEachLevel([](levels::Level) {
        for (auto const type : {"type=albers", "type=lambert-conformal-conic", "type=equidistant-conic"}) {
            Projection projection(std::string(type) + " ellipsoid=wgs-84 lat1=25 lat2=60 lon0=-96 x0=1e7 y0=1e7");
            for (double const lat : {-60.0, 10.0, 89.0, 89.99999})
                for (double const side : {-1, 1}) {
                    auto const edge = projection.forward({-96 + 180 * side, lat});
                    EXPECT_NEAR(projection.inverse(edge).x, -96 + 180 * side, 1e-6) << type << lat;
                    EXPECT_TRUE(isMarked(projection.inverse({edge.x - 1e-3 * side, edge.y + 1e-3}))) << type << lat;
                }
        }
    });
}

TEST(Cone, EndsAtThePoles) {
    test::forEachLevel([](levels::Level) {
        for (auto const* words : {"type=albers ellipsoid=wgs-84 lat1=10 lat2=50",
                                  "type=equidistant-conic ellipsoid=wgs-84 lat1=10 lat2=50"}) {
            Projection projection(words);
            auto const top = projection.forward({0, 90}), bottom = projection.forward({0, -90});
            EXPECT_NEAR(projection.inverse(top).y, 90, 1e-5) << words;
            EXPECT_NEAR(projection.inverse(bottom).y, -90, 1e-5) << words;
            EXPECT_TRUE(isMarked(projection.inverse({0, top.y + 1e-3}))) << words;
            EXPECT_TRUE(isMarked(projection.inverse({0, bottom.y - 1e-3}))) << words;
        }
    });
}
