#include "support/levels.h"
#include "support/registry.h"

#include <gtest/gtest.h>

using namespace ZrProj;
using test::isMarked;
using test::Projection;

// The opposite meridian is on the map twice, at its two edges, and stays there though a false origin rounds it.
TEST(Cylinder, EndsAtTheOppositeMeridian) {
    test::forEachLevel([](levels::Level) {
        for (auto const* words :
             {"type=mercator ellipsoid=wgs-84 lon0=-179.7 x0=1e7", "type=miller ellipsoid=wgs-84 lon0=-179.7 x0=1e7",
              "type=equidistant-cylindrical ellipsoid=wgs-84 lat1=60 lon0=-179.7 x0=1e7"}) {
            Projection projection(words);
            for (double const side : {-1, 1}) {
                double const lon = -179.7 + 180 * side;
                auto const edge = projection.forward({lon, -12.5});
                EXPECT_GT(side * (edge.x - 1e7), 0) << words;
                EXPECT_NEAR(projection.inverse(edge).x, lon, 1e-13) << words;
                EXPECT_TRUE(isMarked(projection.inverse({edge.x + 1e-3 * side, edge.y}))) << words;
            }
        }
    });
}

TEST(Cylinder, EndsAtThePoles) {
    test::forEachLevel([](levels::Level) {
        for (auto const* words :
             {"type=miller ellipsoid=wgs-84 y0=1e7", "type=equidistant-cylindrical ellipsoid=wgs-84 y0=1e7"}) {
            Projection projection(words);
            for (double const pole : {-90, 90}) {
                auto const edge = projection.forward({20, pole});
                EXPECT_NEAR(projection.inverse(edge).y, pole, 1e-13) << words;
                EXPECT_TRUE(isMarked(projection.inverse({edge.x, edge.y + 1e-3 * pole}))) << words;
            }
        }
    });
}
