#include "support/cases.h"
#include "support/levels.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

using namespace ZrProj;

namespace {

PROJDATA azimuthalEquidistant(double lat1, double flattening) {
    PROJDATA record{};
    record.Type = ProjTypeAzimuthalEquidistant;
    record.MajorRadius = 6378137;
    record.Flattening = flattening;
    record.Lat1 = lat1;
    return record;
}

constexpr double degree = 3.141592653589793 / 180, earth = 1 / 298.257223563;

/// Metres between two places, for short distances.
double apart(PROJPOINT const& a, PROJPOINT const& b) {
    double const east = std::remainder(a.x - b.x, 360) * std::cos(a.y * degree);
    return std::hypot(east, a.y - b.y) * degree * 6378137;
}

void expectRoundTrip(CProjector& projector, PROJPOINT const& place) {
    PROJPOINT back = place;
    ASSERT_TRUE(projector.Forward(&back, 1) && projector.Inverse(&back, 1));
    EXPECT_LT(apart(place, back), 2e-7) << place.x << ' ' << place.y;
}

} // namespace

TEST(AzimuthalEquidistant, AgreesWithReferenceValues) {
    test::expectProjectionCases("azimuthal_equidistant.txt");
}

// About the antipode many geodesics are nearly the shortest; they touch an astroid, whose eastern and western ends are
// the ends of the line where two of them are.
TEST(AzimuthalEquidistant, ComesBackFromAroundTheAntipode) {
    test::forEachLevel([](formulas::Level) {
        for (double const flattening : {earth, 0.02})
            for (double const lat1 : {0.0, 1e-9, 40.0, -89.9}) {
                PROJDATA record = azimuthalEquidistant(lat1, flattening);
                CProjector projector(&record);
                double const tan = (1 - flattening) * std::tan(lat1 * degree), cosine = 1 / std::sqrt(1 + tan * tan);
                for (double const east : {0.0, 1e-9, 0.1, 0.5, 0.9, 0.99, 0.999, 1.0, 1.001, 1.1, 2.0})
                    for (double const north : {0.0, 1e-13, 1e-9, 1e-5, 1e-3, 0.1, 0.5, 1.0, 2.0})
                        for (double const side : {-1, 1})
                            expectRoundTrip(projector, {180 - side * 180 * flattening * cosine * east,
                                                        -lat1 + side * 180 * flattening * cosine * cosine * north});
            }
    });
}

TEST(AzimuthalEquidistant, EndsHalfATurnFromTheCentre) {
    test::forEachLevel([](formulas::Level) {
        for (double const flattening : {0.0, earth})
            for (double const lat1 : {0.0, 35.0, 90.0, -90.0}) {
                PROJDATA record = azimuthalEquidistant(lat1, flattening);
                CProjector projector(&record);
                PROJPOINT antipode{180, -lat1};
                ASSERT_TRUE(projector.Forward(&antipode, 1));
                EXPECT_NEAR(antipode.x, 0, 1e-8);
                double const end = antipode.y;
                EXPECT_GT(end, 2e7);
                PROJPOINT points[] = {{0, end}, {0, -end}, {0, end * (1 + 1e-12)}, {end * 1.001, 0}, {1e300, -1e300}};
                ASSERT_TRUE(projector.Inverse(points, 5));
                EXPECT_LT(apart(points[0], {180, -lat1}), 1e-7) << lat1;
                for (int i = 1; i < 5; ++i)
                    EXPECT_EQ(points[i].x, DBL_MAX) << lat1 << ' ' << i;
            }
    });
}

TEST(AzimuthalEquidistant, HasNoMapOfVeryFlatEllipsoids) {
    test::forEachLevel([](formulas::Level) {
        PROJDATA record = azimuthalEquidistant(35, 0.0201);
        CProjector projector(&record);
        PROJPOINT point{1, 36};
        EXPECT_FALSE(projector.LLInProjection(&point));
        EXPECT_TRUE(projector.Forward(&point, 1));
        EXPECT_EQ(point.x, DBL_MAX);
    });
}
