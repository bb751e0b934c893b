#include "support/cases.h"
#include "support/levels.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

using namespace ZrProj;

namespace {

constexpr double degree = 3.141592653589793 / 180, earth = 1 / 298.257223563;

PROJDATA cassini(double flattening) {
    PROJDATA record{};
    record.Type = ProjTypeCassini;
    record.MajorRadius = 6378137;
    record.Flattening = flattening;
    return record;
}

PROJPOINT forward(CProjector& projector, double lon, double lat) {
    PROJPOINT point{lon, lat};
    EXPECT_TRUE(projector.Forward(&point, 1));
    return point;
}

} // namespace

TEST(Cassini, AgreesWithReferenceValues) {
    test::expectProjectionCases("cassini.txt");
}

// Close to the central meridian one formula, elsewhere another.
TEST(Cassini, IsSmoothWhereItsFormulasMeet) {
    constexpr double meeting = 0.08 / degree, step = 1e-3;
    test::forEachLevel([](formulas::Level) {
        for (double const flattening : {1e-5, earth, 1 / 160.0, 0.02}) {
            PROJDATA record = cassini(flattening);
            CProjector projector(&record);
            for (double lat = -89; lat < 90; lat += 4) {
                PROJPOINT p[4]; // third differences vanish where there is no jump
                for (int i = 0; i < 4; ++i)
                    p[i] = forward(projector, meeting + (i - 1.5) * step, lat);
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
    test::forEachLevel([](formulas::Level) {
        for (double const flattening : {0.0, earth, 0.02}) {
            PROJDATA record = cassini(flattening);
            CProjector projector(&record);
            for (double const lat : {-90.0, -45.0, -0.5, -1e-5, -1e-12, 0.0, 1e-13, 1e-9, 1e-3, 0.1, 1.0, 60.0, 89.9})
                for (double const lon : {0.0, 1e-9, 4.0, 5.0, 60.0, 88.3, 89.6, 89.698, 89.6982, 89.6983, 89.699, 89.9,
                                         89.99999, 90.0, 90.2, 120.0, 179.0, 180.0})
                    for (double const side : {-1, 1}) {
                        PROJPOINT back = forward(projector, side * lon, lat);
                        ASSERT_TRUE(projector.Inverse(&back, 1));
                        double const east = std::remainder(back.x - side * lon, 360) * std::cos(lat * degree);
                        EXPECT_NEAR(std::hypot(east, back.y - lat), 0, 3e-12) << side * lon << ' ' << lat;
                    }
        }
    });
}

TEST(Cassini, EndsWhereGeodesicsMeet) {
    test::forEachLevel([](formulas::Level) {
        for (double const flattening : {0.0, earth}) {
            PROJDATA record = cassini(flattening);
            CProjector projector(&record);
            auto const quadrant = forward(projector, 0, 90).y; // a quarter of the meridian
            PROJPOINT points[] = {{0, 2 * quadrant},      {0, -2 * quadrant}, {0, 2 * quadrant + 1},
                                  {1.01 * quadrant, 1e6}, {-1e300, 0},        {0, 1e300}};
            ASSERT_TRUE(projector.Inverse(points, 6));
            EXPECT_NEAR(std::fabs(points[0].x), 180, 1e-12);
            EXPECT_NEAR(points[0].y, 0, 1e-12);
            for (int i = 1; i < 6; ++i)
                EXPECT_EQ(points[i].x, DBL_MAX) << i;
        }
    });
}
