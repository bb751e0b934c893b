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

Projection azimuthalEquidistant(double lat1, double flattening) {
    std::ostringstream words;
    words.precision(17);
    words << "type=azimuthal-equidistant radius=6378137 lat1=" << lat1 << " flattening=" << flattening;
    return Projection(words.str());
}

/// Metres between two places, for short distances.
double apart(PROJPOINT const& a, PROJPOINT const& b) {
    double const east = std::remainder(a.x - b.x, 360) * std::cos(a.y * degree);
    return std::hypot(east, a.y - b.y) * degree * 6378137;
}

} // namespace

// About the antipode many geodesics are nearly the shortest; they touch an astroid, whose eastern and western ends are
// the ends of the line where two of them are.
TEST(AzimuthalEquidistant, ComesBackFromAroundTheAntipode) {
    test::forEachLevel([](levels::Level) {
        for (double const flattening : {earth, 0.02})
            for (double const lat1 : {0.0, 1e-9, 40.0, -89.9}) {
                auto map = azimuthalEquidistant(lat1, flattening);
                double const tan = (1 - flattening) * std::tan(lat1 * degree), cosine = 1 / std::sqrt(1 + tan * tan);
                for (double const east : {0.0, 1e-9, 0.1, 0.5, 0.9, 0.99, 0.999, 1.0, 1.001, 1.1, 2.0})
                    for (double const north : {0.0, 1e-13, 1e-9, 1e-5, 1e-3, 0.1, 0.5, 1.0, 2.0})
                        for (double const side : {-1, 1}) {
                            PROJPOINT const place{180 - side * 180 * flattening * cosine * east,
                                                  -lat1 + side * 180 * flattening * cosine * cosine * north};
                            EXPECT_LT(apart(place, map.inverse(map.forward(place))), 2e-7) << place.x << ' ' << place.y;
                        }
            }
    });
}

TEST(AzimuthalEquidistant, EndsHalfATurnFromTheCentre) {
    test::forEachLevel([](levels::Level) {
        for (double const flattening : {0.0, earth})
            for (double const lat1 : {0.0, 35.0, 90.0, -90.0}) {
                auto map = azimuthalEquidistant(lat1, flattening);
                auto const [east, end] = map.forward(PROJPOINT{180, -lat1});
                EXPECT_NEAR(east, 0, 1e-8);
                EXPECT_GT(end, 2e7);
                EXPECT_LT(apart(map.inverse(PROJPOINT{0, end}), {180, -lat1}), 1e-7) << lat1;
                for (auto const& beyond :
                     {PROJPOINT{0, -end}, {0, end * (1 + 1e-12)}, {end * 1.001, 0}, {1e300, -1e300}})
                    EXPECT_TRUE(isMarked(map.inverse(beyond))) << lat1 << ' ' << beyond.x << ' ' << beyond.y;
            }
    });
}
