#include "support/levels.h"
#include "support/registry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

using namespace ZrProj;
using test::isMarked;
using test::Projection;

namespace {

constexpr double degree = 3.141592653589793 / 180, earth = 1 / 298.257223563;

Projection cassini(double flattening) {
    std::ostringstream words;
    words.precision(17);
    words << "type=cassini radius=6378137 flattening=" << flattening;
    return Projection(words.str());
}

} // namespace

// Close to the central meridian one formula, elsewhere another.
TEST(Cassini, IsSmoothWhereItsFormulasMeet) {
    constexpr double meeting = 0.08 / degree, step = 1e-3;
    test::forEachLevel([](levels::Level) {
        for (double const flattening : {1e-5, earth, 1 / 160.0, 0.02}) {
            auto map = cassini(flattening);
            for (double lat = -89; lat < 90; lat += 4) {
                PROJPOINT p[4]; // third differences vanish where there is no jump
                for (int i = 0; i < 4; ++i)
                    p[i] = map.forward(PROJPOINT{meeting + (i - 1.5) * step, lat});
                double const metres = flattening < 0.01 ? 5e-8 : 2e-6;
                EXPECT_NEAR(p[3].x - p[0].x - 3 * (p[2].x - p[1].x), 0, metres) << flattening << ' ' << lat;
                EXPECT_NEAR(p[3].y - p[0].y - 3 * (p[2].y - p[1].y), 0, metres) << flattening << ' ' << lat;
            }
        }
    });
}

// A quarter turn from the central meridian geodesics from it come together on the equator, north and south of an
// astroid; beyond the poles its far side is the central meridian.
TEST(Cassini, ComesBackFromAllOverTheGlobe) {
    test::forEachLevel([](levels::Level) {
        for (double const flattening : {0.0, earth, 0.02}) {
            auto map = cassini(flattening);
            for (double const lat : {-90.0, -45.0, -0.5, -1e-5, -1e-12, 0.0, 1e-13, 1e-9, 1e-3, 0.1, 1.0, 60.0, 89.9})
                for (double const lon : {0.0, 1e-9, 4.0, 5.0, 60.0, 88.3, 89.6, 89.698, 89.6982, 89.6983, 89.699, 89.9,
                                         89.99999, 90.0, 90.2, 120.0, 179.0, 180.0})
                    for (double const side : {-1, 1}) {
                        auto const back = map.inverse(map.forward(PROJPOINT{side * lon, lat}));
                        double const east = std::remainder(back.x - side * lon, 360) * std::cos(lat * degree);
                        EXPECT_NEAR(std::hypot(east, back.y - lat), 0, 3e-12) << side * lon << ' ' << lat;
                    }
        }
    });
}

TEST(Cassini, EndsWhereGeodesicsMeet) {
    test::forEachLevel([](levels::Level) {
        for (double const flattening : {0.0, earth}) {
            auto map = cassini(flattening);
            auto const quadrant = map.forward(PROJPOINT{0, 90}).y; // a quarter of the meridian
            auto const edge = map.inverse(PROJPOINT{0, 2 * quadrant});
            EXPECT_NEAR(std::fabs(edge.x), 180, 1e-12);
            EXPECT_NEAR(edge.y, 0, 1e-12);
            for (auto const& beyond :
                 {PROJPOINT{0, -2 * quadrant}, {0, 2 * quadrant + 1}, {1.01 * quadrant, 1e6}, {-1e300, 0}, {0, 1e300}})
                EXPECT_TRUE(isMarked(map.inverse(beyond))) << beyond.x << ' ' << beyond.y;
        }
    });
}
